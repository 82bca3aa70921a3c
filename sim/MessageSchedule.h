#pragma once

#include "sim/CardRecord.h"
#include "sim/RandomSource.h"
#include "sim/Snapshot.h"

#include <array>
#include <cstdint>
#include <vector>

namespace ZARN {

/// Which unit sends which value under which identifier and how often, as the CANaerospace messages of the buses. Holds pointers
/// into the snapshot that it was made with, which must outlive it.
class MessageSchedule {
public:
    explicit MessageSchedule(const Snapshot& snapshot);

    /// The records of one step of 0.1 s in ascending time, at most as many as there are messages. The vector is the schedule's
    /// own and is overwritten by the next call.
    /// @param step counts the steps since power-up.
    const std::vector<CardRecord>& records(std::uint64_t step, RandomSource& random);

private:
    /// CANaerospace data type codes.
    enum class EType : std::uint8_t { eFloat = 2, eLong = 3, eUlong = 4, eBlong = 5, eShort = 6, eUshort = 7, eBshort = 8, eChar = 9, eUchar = 10 };
    /// Steps of 0.1 s between two messages.
    enum ERate : unsigned { e10Hz = 1, e5Hz = 2, e2Hz = 5, e1Hz = 10 };
    enum class ENode : std::uint8_t { eLaneA = 1, eLaneB = 2, eMonitor = 3, eElectrical = 4, eGps = 5, eAirData = 6 };

    struct Message {
        std::uint32_t id;
        EType type;
        ENode node;
        std::uint8_t kind;
        std::uint8_t code; ///< counts the messages of this identifier
        const double* pValue;
        double perUnit; ///< raw units a unit of the value
    };

    /// Where and by whom a group of messages is sent.
    struct Sender {
        ENode node;
        std::uint8_t kind;
    };

    void add(Sender sender, std::uint32_t id, EType type, ERate rate, const double& value, double perUnit = 1);
    void addLane(Sender sender, std::uint32_t base, std::uint32_t faultId, const LaneValues& lane);
    void addLaneStates(Sender sender, std::uint32_t base, const LaneValues& lane);
    void addEngine(const EngineValues& engine);
    void addMonitor(const MonitorValues& monitor);
    void addElectrical(const ElectricalValues& electrical, const AmbientValues& ambient);
    void addGps(const GpsValues& gps);
    void addAir(const AirValues& air);
    void addLamps(const std::array<double, kLamps>& lamps);
    static void encode(const Message& message, CardRecord& record);

    static constexpr std::size_t kRound = 10; ///< steps after which the schedule repeats

    std::vector<Message> mMessages;
    std::array<std::vector<std::uint32_t>, kRound> mDue; ///< indexes of the messages of each step of the round
    std::vector<CardRecord> mRecords;
    std::uint16_t mSequence = 0;
};

} // namespace ZARN
