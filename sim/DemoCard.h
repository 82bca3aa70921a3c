#pragma once

#include <cstdint>
#include <string>

namespace ZARN {

/// What a card is to hold; the defaults are those of the demo card that everybody gets.
struct DemoCardOptions {
    /// Least recorded time of the card. Its story of three power cycles is always told whole, which takes a little more than
    /// an hour; whole flight cycles follow until the hours are reached. 0 to 10,000.
    double hours = 1.0;
    std::uint64_t seed = 1;
    bool bigEndian = false;
};

/// Writes a card as the aircraft's recorder would have: a ground run, a flight cycle of two tows, a short run without a clock,
/// and more flight cycles as asked. The values can be decoded with the profile "915". The same options give the same bytes.
/// Memory does not grow with the hours.
class DemoCard {
public:
    /// Writes the files LOG00001.CAN, LOG00002.CAN ... into the folder, which is made when it is missing. A folder that holds
    /// record files already is refused. They are written aside, in a hidden folder, and take their places when all are done: neither
    /// a failure nor the program's end leaves some of them. @param error "NAME: reason" of a failure.
    bool write(const std::string& directory, const DemoCardOptions& options, std::string& error);
};

} // namespace ZARN
