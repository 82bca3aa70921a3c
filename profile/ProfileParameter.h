#pragma once

#include <cstdint>
#include <string>

namespace ZARN {

/// The unit system of the displays; the numbers are those of the setting "Unit".
enum class EUnit { eMetric = 0, eImperial = 1 };

/// CANaerospace data type codes, as profiles name them and as byte 1 of a message carries them.
enum ECanasType {
    eNoData = 0,
    eError = 1,
    eFloat = 2,
    eLong = 3,
    eULong = 4,
    eBLong = 5,
    eShort = 6,
    eUShort = 7,
    eBShort = 8,
    eChar = 9,
    eUChar = 10,
    eShort2 = 12,
    eUShort2 = 13,
    eChar4 = 15,
    eUChar4 = 16,
    eChar2 = 18,
    eUChar2 = 19,
    eChar3 = 26,
    eUChar3 = 27
};

/// What a set fault bit means.
enum EErrorType { eErrorNone = 0, eErrorInfo = 1, eErrorWarning = 2, eErrorFault = 3 };

/// Where computed parameters have their number in the payloads that are made for them: where CANaerospace has its own.
inline constexpr int kComputedStartByte = 4;

/// One parameter of a profile: where its value lies in the payload of its messages and how it is shown.
struct ProfileParameter {
    std::string name;
    std::string path; ///< device name, "/", name
    std::string unitMetric;
    std::string unitImperial;
    std::string viewId; ///< "Latitude" and "Longitude" switch on the position decoding
    int dataType = eNoData;
    std::string zarnDataType; ///< the key by which the program finds well-known parameters
    int enumList = 0;         ///< list number, from 1; 0 is no list
    int thresholdList = 0;
    int id = 0; ///< CAN identifier of its records
    int startByte = 0;
    int startBit = 0;
    int endBit = 0;
    double offset = 0.0;
    double factor = 1.0;
    int precision = 6; ///< as the profile gives it; held to 0..17 where it is used
    int errorType = eErrorNone;
    int deviceIndex = 0; ///< from 1, in file order
    std::string expression; ///< of a computed parameter, which no record carries; else empty

    /// The display unit of a system.
    [[nodiscard]] const std::string& unit(EUnit system) const { return system == EUnit::eImperial ? unitImperial : unitMetric; }
    [[nodiscard]] uint32_t identifier() const { return static_cast<uint32_t>(id); }
    [[nodiscard]] bool isComputed() const { return !expression.empty(); }
    [[nodiscard]] bool isPosition() const { return dataType == eFloat && (viewId == "Latitude" || viewId == "Longitude"); }
};

} // namespace ZARN
