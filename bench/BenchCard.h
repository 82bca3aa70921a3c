#pragma once

#include <cstddef>
#include <string>

namespace ZARN {

/// The recordings that the benchmarks read: 60 identifiers, about 1,000 records a second, big-endian, times ascending. Made on
/// first use in a temporary folder that goes with the process.
class BenchCard {
public:
    /// The folder of a card with one file of so many records.
    static std::string folder(std::size_t records);
    static std::string file(std::size_t records) { return folder(records) + "/00000001.CAN"; }
    /// A card of many small files.
    static std::string folderOfFiles(int files);
    /// A profile that decodes the recordings.
    static std::string profile();
    /// The same with all that a review of the engine asks for: its speed, flows, a fault matrix.
    static std::string engineProfile();
};

} // namespace ZARN
