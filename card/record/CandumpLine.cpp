#include "card/record/CandumpLine.h"

#include <algorithm>
#include <charconv>

namespace ZARN {

namespace {

constexpr const char* kBlanks = " \t\r";
constexpr std::size_t kSecondDigits = 10; // until the year 2286
constexpr std::size_t kFractionDigits = 9;
constexpr std::size_t kStandardDigits = 3; // an identifier of more digits is one of 29 bits
constexpr std::size_t kIdentifierDigits = 8;
constexpr uint32_t kErrorFlag = 0x20000000;
constexpr std::size_t kFdBytes = 64;

/// Takes the leading characters that are no blank.
std::string_view takeWord(std::string_view& text)
{
    const std::string_view word = text.substr(0, std::min(text.find_first_of(kBlanks), text.size()));
    text.remove_prefix(word.size());
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return word;
}

/// All of a text as a number of at most so many digits; no sign, no blank.
template <typename Number> bool toNumber(std::string_view text, std::size_t most, int base, Number& number)
{
    if (text.empty() || text.size() > most)
        return false;
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && pEnd == text.data() + text.size();
}

/// "(1699999999.123456)" in nanoseconds.
bool toNanoseconds(std::string_view text, uint64_t& nanoseconds)
{
    if (text.size() < 2 || text.front() != '(' || text.back() != ')')
        return false;
    text = text.substr(1, text.size() - 2);
    const std::size_t dot = text.find('.');
    uint64_t seconds = 0;
    uint64_t fraction = 0;
    if (dot == std::string_view::npos || !toNumber(text.substr(0, dot), kSecondDigits, 10, seconds))
        return false;
    const std::string_view digits = text.substr(dot + 1);
    if (!toNumber(digits, kFractionDigits, 10, fraction))
        return false;
    for (std::size_t i = digits.size(); i < kFractionDigits; ++i)
        fraction *= 10;
    nanoseconds = seconds * 1'000'000'000 + fraction;
    return true;
}

/// Takes pairs of hexadecimal digits, which dots may part. @return how many there were; more than `most` are left.
std::size_t takeBytes(std::string_view& text, uint8_t* pBytes, std::size_t most)
{
    std::size_t count = 0;
    while (count < most && text.size() >= 2) {
        const std::size_t dot = count > 0 && text.front() == '.' ? 1 : 0;
        if (text.size() < dot + 2 || !toNumber(text.substr(dot, 2), 2, 16, pBytes[count]))
            break;
        text.remove_prefix(dot + 2);
        ++count;
    }
    return count;
}

bool isHex(std::string_view text)
{
    return text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

/// What stands behind the identifier, with its first mark.
CandumpLine::EKind parseData(std::string_view text, CandumpLine& line)
{
    using EKind = CandumpLine::EKind;
    if (text.starts_with("##")) {
        std::array<uint8_t, kFdBytes> bytes;
        text.remove_prefix(2);
        if (text.empty() || !isHex(text.substr(0, 1)))
            return EKind::eNone;
        text.remove_prefix(1); // flags
        takeBytes(text, bytes.data(), bytes.size());
        return text.empty() ? EKind::eFd : EKind::eNone;
    }
    text.remove_prefix(1);
    if (text.starts_with('R') || text.starts_with('r'))
        return text.size() <= 4 && isHex(text.substr(1, 1)) ? EKind::eRemote : EKind::eNone;
    line.frame.length = takeBytes(text, line.frame.payload.data(), line.frame.payload.size());
    // A length above 8, which the bus can carry beside 8 bytes.
    const bool hasLength = line.frame.length == line.frame.payload.size() && text.size() == 2 && text.front() == '_' && isHex(text.substr(1));
    return text.empty() || hasLength ? EKind::eFrame : EKind::eNone;
}

bool isDirection(std::string_view word)
{
    return word.empty() || word == "T" || word == "R" || word == "Tx" || word == "Rx";
}

} // namespace

CandumpLine CandumpLine::parse(std::string_view text)
{
    CandumpLine line;
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    const std::string_view stamp = takeWord(text);
    line.device = takeWord(text);
    const std::string_view frame = takeWord(text);
    const std::size_t mark = frame.find('#');
    uint32_t identifier = 0;
    if (mark == std::string_view::npos || !toNumber(frame.substr(0, mark), kIdentifierDigits, 16, identifier) || !isDirection(text) ||
        !toNanoseconds(stamp, line.nanoseconds))
        return line;
    line.frame.isExtended = mark > kStandardDigits;
    line.frame.identifier = identifier & kHighestIdentifier;
    const bool isError = line.frame.isExtended && (identifier & ~kHighestIdentifier) == kErrorFlag;
    if (!isError && identifier > (line.frame.isExtended ? kHighestIdentifier : kHighestStandard))
        return line;
    line.kind = parseData(frame.substr(mark), line);
    if (isError && line.kind != EKind::eNone)
        line.kind = EKind::eError;
    return line;
}

} // namespace ZARN
