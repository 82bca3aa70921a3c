#pragma once

#include "card/record/RecordWriter.h"
#include "sim/RandomSource.h"
#include "sim/Snapshot.h"

#include <vector>

namespace ZARN::Sim {

/// Which unit sends which value under which identifier and how often, as the CANaerospace messages of the buses.
class MessageSchedule {
public:
    static constexpr std::uint64_t kStepTicks = 3'200'000; ///< of the unit's counter in a step of 0.1 s

    MessageSchedule();

    /// Writes the records of one step in ascending time. @param step counts the steps since power-up.
    void write(std::uint64_t step, const Snapshot& snapshot, RandomSource& random, RecordWriter& writer);

private:
    /// CANaerospace data type codes.
    enum EType : std::uint8_t { eFloat = 2, eLong = 3, eUlong = 4, eBlong = 5, eShort = 6, eUshort = 7, eBshort = 8, eChar = 9, eUchar = 10 };
    /// Steps of 0.1 s between two messages.
    enum ERate : std::uint8_t { e10Hz = 1, e5Hz = 2, e2Hz = 5, e1Hz = 10 };

    /// Messages of one kind with ascending identifiers.
    struct Group {
        std::uint32_t first, count;
        EType type;
        ERate rate;
        double perUnit = 1; ///< raw units a unit of the value
    };
    struct Message {
        std::uint32_t id;
        EType type;
        std::uint8_t node;
        std::uint8_t kind;
        std::uint8_t code; ///< counts the messages of this identifier
        double perUnit;
    };

    static const Group kLane[], kMonitor[], kElectrical[], kGps[], kAir[], kLamps[];

    template <std::size_t Count> void add(std::uint8_t node, std::uint8_t kind, const Group (&groups)[Count], std::uint32_t base = 0);
    void add(std::uint8_t node, std::uint8_t kind, const Group& group);
    static Payload encode(const Message& message, double value);

    static constexpr std::size_t kRound = 10; ///< steps after which the schedule repeats

    std::vector<Message> mMessages;
    std::array<std::vector<std::uint32_t>, kRound> mDue; ///< indexes of the messages of each step of the round
    std::uint16_t mSequence = 0;
};

} // namespace ZARN::Sim
