#pragma once

#include "card/record/RecordWriter.h"
#include "sim/RandomSource.h"
#include "sim/Snapshot.h"

namespace ZARN::Sim {

/// Which unit sends which value under which identifier and how often, as the CANaerospace messages of the buses.
class MessageSchedule {
public:
    static constexpr std::uint64_t kStepTicks = 3'200'000; ///< of the unit's counter in a step of 0.1 s

    /// Writes the records of one step in ascending time. @param step counts the steps since power-up.
    void write(std::uint64_t step, const Snapshot& snapshot, RandomSource& random, RecordWriter& writer);

private:
    std::array<std::uint8_t, eIdentifierEnd> mCodes{}; ///< count the messages of each identifier
    std::uint16_t mSequence = 0;
};

} // namespace ZARN::Sim
