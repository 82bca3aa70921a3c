#include "card/record/CandumpFile.h"

#include "card/record/CandumpLine.h"
#include "card/record/RecordData.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <utility>

namespace ZARN {

namespace {

using EKind = CandumpLine::EKind;

constexpr std::size_t kPiece = 256 * 1024;     // bytes a read
constexpr std::size_t kLongestLine = 8 * 1024; // a longer one is none
constexpr std::string_view kNoLine = "?";
constexpr uint64_t kLeastClock = 365 * 86'400 * uint64_t(1'000'000'000); // smaller stamps count from power-up

} // namespace

/// What a pass met.
struct CandumpFile::Tally {
    uint64_t frames = 0;
    uint64_t remote = 0;
    uint64_t error = 0;
    uint64_t fd = 0;
    uint64_t none = 0;
    uint64_t tooShort = 0;
    uint64_t extended = 0; // with a standard identifier's number
    uint64_t lowest = UINT64_MAX; // stamps of the frames, in nanoseconds
    uint64_t highest = 0;
    std::string device;
    bool hasStandard = false;
    bool hasSeveralDevices = false;
    bool isCutOff = false;

    /// @return whether the line makes a record.
    bool count(const CandumpLine& line)
    {
        switch (line.kind) {
        case EKind::eRemote: ++remote; break;
        case EKind::eError: ++error; break;
        case EKind::eFd: ++fd; break;
        case EKind::eNone: ++none; break;
        case EKind::eFrame:
            ++frames;
            tooShort += line.frame.recordIdentifier() & kShortFlag ? 1 : 0;
            extended += line.frame.recordIdentifier() & kExtendedFlag ? 1 : 0;
            hasStandard |= !line.frame.isExtended;
            lowest = std::min(lowest, line.nanoseconds);
            highest = std::max(highest, line.nanoseconds);
            if (device.empty())
                device = line.device;
            hasSeveralDevices |= device != line.device;
            return true;
        }
        return false;
    }
};

bool CandumpFile::accepts(std::string_view beginning)
{
    while (!beginning.empty()) {
        const std::string_view line = beginning.substr(0, beginning.find('\n'));
        if (CandumpLine::parse(line).kind != EKind::eNone)
            return true;
        beginning.remove_prefix(std::min(line.size() + 1, beginning.size()));
    }
    return false;
}

/// Calls `visit` with each line and whether a line break ends it. @return false when it could not be read to its end, or visit does.
template <typename Visitor> bool CandumpFile::forEachLine(FILE* pFile, Visitor visit)
{
    std::string buffer(kPiece, '\0');
    std::size_t kept = 0; // bytes of a line that the next piece goes on with
    int64_t done = 0;
    for (bool isTooLong = false, isMore = true; isMore;) {
        errno = 0;
        const std::size_t got = std::fread(buffer.data() + kept, 1, buffer.size() - kept, pFile);
        isMore = kept + got == buffer.size();
        std::string_view text(buffer.data(), kept + got);
        for (std::size_t end; (end = text.find('\n')) != std::string_view::npos; text.remove_prefix(end + 1)) {
            if (!std::exchange(isTooLong, false) && !visit(text.substr(0, end), true))
                return false;
        }
        if (std::ferror(pFile)) {
            noteSystemError(errno != 0 ? errno : EIO);
            return false;
        }
        const bool isRest = !isTooLong && (!isMore || text.size() > kLongestLine);
        if (isRest && !visit(isMore ? kNoLine : text, false))
            return false;
        isTooLong |= text.size() > kLongestLine;
        kept = isTooLong ? 0 : text.size();
        std::memmove(buffer.data(), text.data(), kept);
        done += static_cast<int64_t>(got);
        isMore &= tellProgress(static_cast<int32_t>(std::min<int64_t>(done * 100 / std::max<int64_t>(fileSize(), 1), 99)));
    }
    return true;
}

template <typename Visitor> bool CandumpFile::forEachFrame(FILE* pFile, Tally& tally, Visitor visit)
{
    return forEachLine(pFile, [&](std::string_view text, bool isEnded) {
        if (CandumpLine::isBlank(text))
            return true;
        CandumpLine line = CandumpLine::parse(text);
        // Cut off, its data would pass for a shorter frame, filled up with 0.
        if (!isEnded && line.kind == EKind::eFrame && line.frame.length < line.frame.payload.size()) {
            tally.isCutOff = true;
            return true;
        }
        return !tally.count(line) || visit(line);
    });
}

void CandumpFile::scanFile(FILE* pFile)
{
    Tally tally;
    const bool isWhole = forEachFrame(pFile, tally, [](const CandumpLine&) { return true; });
    forgetInfo();
    holdsCycle = true;
    if (!isWhole)
        return;
    setSpan(tally);
    noteDamage(tally);
}

void CandumpFile::setSpan(const Tally& tally)
{
    samples = static_cast<uint32_t>(std::min<uint64_t>(tally.frames, UINT32_MAX));
    if (samples == 0)
        return;
    // The lowest stamp is the first one, unless the clock was set back: no time is negative.
    if (tally.lowest >= kLeastClock) {
        clockStart = tally.lowest;
        dateTime = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(clockStart / 1'000'000), Qt::UTC);
    }
    addSpan(true, ticks(tally.lowest), ticks(tally.highest));
}

void CandumpFile::noteDamage(const Tally& tally)
{
    if (tally.none > 0)
        note(tr("lines that are no frame: %1").arg(tally.none), false);
    if (tally.isCutOff)
        note(tr("the last line is cut off"), false);
    if (tally.remote + tally.error + tally.fd > 0)
        note(tr("frames that cannot be used: %1 remote, %2 error, %3 FD").arg(tally.remote).arg(tally.error).arg(tally.fd), false);
    const uint64_t extended = tally.hasStandard ? tally.extended : 0;
    if (tally.tooShort + extended > 0) {
        note(tr("frames that no parameter reads: %1 with too few data, %2 of 29 bits with a standard identifier").arg(tally.tooShort).arg(extended),
             false);
    }
    if (tally.hasSeveralDevices)
        note(tr("the frames of several interfaces are read as one bus"), false);
    noteUnsoundTimes();
}

/// Whether a frame has a standard identifier. Where none has, all were written with eight digits, whatever they are.
bool CandumpFile::hasStandard(FILE* pFile)
{
    Tally tally;
    forEachFrame(pFile, tally, [](const CandumpLine& line) { return line.frame.isExtended; });
    std::rewind(pFile);
    return tally.hasStandard;
}

bool CandumpFile::loadFile(FILE* pFile, RecordData& data)
{
    const bool isMixed = hasStandard(pFile);
    Tally tally;
    const bool isFirst = data.count() == 0;
    const uint32_t before = data.count();
    bool hasMemory = true;
    const bool isWhole = forEachFrame(pFile, tally, [&](const CandumpLine& line) {
        CanFrame frame = line.frame;
        frame.isExtended &= isMixed;
        if (line.nanoseconds >= clockStart)
            hasMemory = data.append(frame.recordIdentifier(), frame.record(ticks(line.nanoseconds)));
        return hasMemory;
    });
    const uint32_t added = data.count() - before;
    if (added > 0)
        addSpan(isFirst, ticks(std::max(tally.lowest, clockStart)), ticks(tally.highest));
    if (isWhole)
        noteLost(added);
    return hasMemory;
}

uint64_t CandumpFile::ticks(uint64_t nanoseconds) const
{
    const uint64_t elapsed = nanoseconds - clockStart; // 125 ns are 4 ticks
    return elapsed / 125 * 4 + (elapsed % 125 * 4 + 62) / 125;
}

} // namespace ZARN
