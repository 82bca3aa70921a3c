#pragma once

#include "card/record/RecordReader.h"

#include <string_view>

namespace ZARN {

/// Reads a log of a CAN bus in can-utils' text form. Each file is a power cycle: its times count from the first frame, whose stamp is
/// the date, or are the stamps themselves where these are too small to be a clock. Lines that are no frame are skipped and counted,
/// frames that make no record (remote, error, FD) counted by their kind.
class CandumpFile : public RecordReader {
    Q_DECLARE_TR_FUNCTIONS(ZARN::CandumpFile)

public:
    using RecordReader::RecordReader;

    /// Whether a file that begins like that is such a log.
    [[nodiscard]] static bool accepts(std::string_view beginning);

private:
    struct Tally;

    void scanFile(FILE* pFile) override;
    bool loadFile(FILE* pFile, RecordData& data) override;
    void setSpan(const Tally& tally);
    void noteDamage(const Tally& tally);
    [[nodiscard]] uint64_t ticks(uint64_t nanoseconds) const;
    [[nodiscard]] bool hasStandard(FILE* pFile);
    template <typename Visitor> bool forEachLine(FILE* pFile, Visitor visit);
    template <typename Visitor> bool forEachFrame(FILE* pFile, Tally& tally, Visitor visit);
};

} // namespace ZARN
