#pragma once

#include "card/record/RecordEntry.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <string>

namespace ZARN {

/// What the header of a record file tells: the unit's identity, the date of the recording, its span and size.
struct RecordInfo {
    QString fileName;   ///< full path; see decodeFileName() for names that are no text
    QDateTime dateTime; ///< wall clock of the recording, without a zone (kept as UTC); invalid when the unit had none
    double startTime = 0.0; ///< seconds since power-up, of the first data record
    double endTime = 0.0;   ///< of the last data record
    uint32_t samples = 0;   ///< number of data records
    uint32_t busType = 0;
    uint32_t ecuSerialNumber = 0;
    std::string softwarePartA; ///< texts as recorded, UTF-8 when the unit wrote it so; any bytes in a damaged file
    std::string ecuType;
    std::string engineSerial;
    std::string engineType;
    std::string softwarePartB;
    std::string emuSoftwareVersion;
    bool holdsCycle = false;  ///< the file is a power cycle of its own, whole; its date is that of the time 0
    uint64_t clockStart = 0;  ///< that time 0 in nanoseconds since 1970, where the file tells it so finely; else 0
    bool startsCycle = false; ///< set by the container: the unit was switched on with this file

    /// Whether the span can be one; else the header is damaged.
    [[nodiscard]] bool hasSoundTimes() const { return samples == 0 || (endTime >= startTime && endTime <= kLatestTime); }
};

} // namespace ZARN
