#include "store/ParquetColumn.h"

#include <array>
#include <bit>
#include <cstring>
#include <span>

namespace ZARN {

namespace {

constexpr std::size_t kGroup = 8; // values that are packed together, and the shortest run

template <typename Number> void appendPlain(std::string& out, Number number)
{
    static_assert(std::endian::native == std::endian::little, "the format is little-endian, as are the machines that this runs on");
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    out.append(bytes, sizeof number);
}

void appendPlain(std::string& out, const std::string& text)
{
    appendPlain(out, static_cast<uint32_t>(text.size()));
    out += text;
}

/// Small numbers as runs of equal ones and groups of packed bits.
class RunWriter {
public:
    RunWriter(std::string& out, unsigned int width) : mOut(out), mWidth(width) {}

    template <typename Number> void write(std::span<const Number> numbers)
    {
        for (std::size_t i = 0; i < numbers.size();) {
            std::size_t run = 1;
            while (i + run < numbers.size() && numbers[i + run] == numbers[i])
                ++run;
            std::size_t packed = run < kGroup ? run : (kGroup - mPending.size() % kGroup) % kGroup; // a run begins where a group ends
            mPending.insert(mPending.end(), packed, numbers[i]);
            i += packed;
            run -= packed;
            if (run >= kGroup) {
                flush();
                appendRun(run, numbers[i]);
            } else {
                mPending.insert(mPending.end(), run, run > 0 ? numbers[i] : 0);
            }
            i += run;
        }
        flush();
    }

private:
    void appendVarint(uint64_t number)
    {
        for (; number >= 0x80; number >>= 7)
            mOut += static_cast<char>(number | 0x80);
        mOut += static_cast<char>(number);
    }

    void appendRun(std::size_t count, uint32_t number)
    {
        appendVarint(static_cast<uint64_t>(count) << 1);
        for (unsigned int bits = 0; bits < mWidth; bits += 8)
            mOut += static_cast<char>(number >> bits);
    }

    void flush()
    {
        if (mPending.empty())
            return;
        mPending.resize((mPending.size() + kGroup - 1) / kGroup * kGroup);
        appendVarint(mPending.size() / kGroup << 1 | 1);
        uint64_t bits = 0;
        unsigned int count = 0;
        for (const uint32_t number : mPending) {
            bits |= static_cast<uint64_t>(number) << count;
            for (count += mWidth; count >= 8; count -= 8, bits >>= 8)
                mOut += static_cast<char>(bits);
        }
        mPending.clear();
    }

    std::string& mOut;
    const unsigned int mWidth;
    std::vector<uint32_t> mPending;
};

unsigned int widthFor(std::size_t count)
{
    return std::max(1u, static_cast<unsigned int>(std::bit_width(count > 0 ? count - 1 : 0)));
}

void setDictionary(ParquetPages& pages, std::size_t size, std::span<const uint32_t> places)
{
    pages.encoding = ParquetPages::eDictionary;
    pages.dictionarySize = static_cast<uint32_t>(size);
    const unsigned int width = widthFor(size);
    pages.data = static_cast<char>(width);
    RunWriter(pages.data, width).write(places);
}

/// The distinct numbers among some, as long as they are few; told apart by their bits.
class Distinct {
public:
    explicit Distinct(std::size_t most) : mMost(most), mSlots(kFirstSlots) {}

    /// Takes all of some numbers. @return false when too many of them are distinct
    template <typename Number> bool take(const std::vector<Number>& numbers)
    {
        mPlaces.resize(numbers.size());
        uint64_t last = 0;
        uint32_t place = kNone;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const auto bits = std::bit_cast<uint64_t>(numbers[i]);
            if (bits != last || place == kNone) { // values that hold come in runs
                place = placeOf(bits);
                if (place == kNone)
                    return false;
                last = bits;
            }
            mPlaces[i] = place;
        }
        return true;
    }
    [[nodiscard]] const std::vector<uint64_t>& numbers() const { return mNumbers; }
    [[nodiscard]] const std::vector<uint32_t>& places() const { return mPlaces; }

private:
    static constexpr uint32_t kNone = ~0u;
    static constexpr std::size_t kFirstSlots = 64;

    [[nodiscard]] std::size_t slotOf(uint64_t bits) const
    {
        std::size_t slot = static_cast<std::size_t>((bits * 0x9E3779B97F4A7C15u) >> 32) & (mSlots.size() - 1);
        while (mSlots[slot] != 0 && mNumbers[mSlots[slot] - 1] != bits)
            slot = (slot + 1) & (mSlots.size() - 1);
        return slot;
    }

    uint32_t placeOf(uint64_t bits)
    {
        std::size_t slot = slotOf(bits);
        if (mSlots[slot] != 0)
            return mSlots[slot] - 1;
        if (mNumbers.size() == mMost)
            return kNone;
        if (2 * mNumbers.size() >= mSlots.size()) {
            mSlots.assign(4 * mSlots.size(), 0);
            for (std::size_t i = 0; i < mNumbers.size(); ++i)
                mSlots[slotOf(mNumbers[i])] = static_cast<uint32_t>(i + 1);
            slot = slotOf(bits);
        }
        mNumbers.push_back(bits);
        mSlots[slot] = static_cast<uint32_t>(mNumbers.size());
        return mSlots[slot] - 1;
    }

    const std::size_t mMost;
    std::vector<uint32_t> mSlots; // place + 1; 0: free
    std::vector<uint64_t> mNumbers;
    std::vector<uint32_t> mPlaces;
};

template <typename Number> ParquetPages numberPages(const std::vector<Number>& numbers)
{
    ParquetPages pages;
    Distinct distinct(numbers.size() / 4);
    if (!numbers.empty() && distinct.take(numbers)) {
        for (const uint64_t number : distinct.numbers())
            appendPlain(pages.dictionary, number);
        setDictionary(pages, distinct.numbers().size(), distinct.places());
        return pages;
    }
    pages.data.resize(numbers.size() * sizeof(Number));
    if (!numbers.empty())
        std::memcpy(pages.data.data(), numbers.data(), pages.data.size());
    return pages;
}

ParquetPages textPages(const ParquetFields& fields)
{
    ParquetPages pages;
    if (fields.places.empty())
        return pages;
    for (const std::string& text : fields.texts)
        appendPlain(pages.dictionary, text);
    setDictionary(pages, fields.texts.size(), fields.places);
    return pages;
}

constexpr std::array<uint32_t, 256> crcTable()
{
    std::array<uint32_t, 256> table{};
    for (uint32_t byte = 0; byte < table.size(); ++byte) {
        uint32_t crc = byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? 0xEDB88320u ^ (crc >> 1) : crc >> 1;
        table[byte] = crc;
    }
    return table;
}

} // namespace

void ParquetFields::add(const FieldValue& value)
{
    defined.push_back(std::holds_alternative<std::monostate>(value) ? 0 : 1);
    if (const auto* pInteger = std::get_if<int64_t>(&value)) {
        integers.push_back(*pInteger);
    } else if (const auto* pReal = std::get_if<double>(&value)) {
        reals.push_back(*pReal);
    } else if (const auto* pText = std::get_if<std::string>(&value)) {
        const auto [place, isNew] = mPlaces.try_emplace(*pText, static_cast<uint32_t>(texts.size()));
        if (isNew)
            texts.push_back(*pText);
        places.push_back(place->second);
    }
}

void ParquetFields::clear()
{
    defined.clear();
    integers.clear();
    reals.clear();
    places.clear();
}

std::string parquetLevels(const std::vector<uint8_t>& defined)
{
    std::string runs, levels;
    RunWriter(runs, 1).write(std::span<const uint8_t>(defined));
    appendPlain(levels, static_cast<uint32_t>(runs.size()));
    return levels + runs;
}

ParquetPages parquetPages(ParquetColumn::EType type, const ParquetFields& fields)
{
    switch (type) {
    case ParquetColumn::eInteger: return numberPages(fields.integers);
    case ParquetColumn::eReal: return numberPages(fields.reals);
    case ParquetColumn::eText: break;
    }
    return textPages(fields);
}

std::string splitByteStreams(const std::string& plain)
{
    constexpr std::size_t kBytes = 8;
    const std::size_t count = plain.size() / kBytes;
    std::string split(plain.size(), '\0');
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t byte = 0; byte < kBytes; ++byte)
            split[byte * count + i] = plain[i * kBytes + byte];
    }
    return split;
}

uint32_t parquetCrc(const std::string& bytes)
{
    static constexpr std::array<uint32_t, 256> kTable = crcTable();
    uint32_t crc = ~0u;
    for (const char byte : bytes)
        crc = kTable[(crc ^ static_cast<unsigned char>(byte)) & 0xFFu] ^ (crc >> 8);
    return ~crc;
}

} // namespace ZARN
