#pragma once

#include "card/record/RecordEntry.h"

#include <span>

/// The inner loops that decode runs of records. Kept apart because they are compiled once for processors with a fused
/// multiply-add instruction and once without: the results are the same bits, the library call is three times slower.
/// Each writes factor x raw + offset for every record; the data type names the raw value at `startByte`, 0..4 (0..6 for
/// 16-bit, 0..7 for 8-bit types).
namespace ZARN::Kernels {

/// Where the raw value stands and how it is scaled.
struct Scaling {
    int startByte;
    double factor;
    double offset;
};

void floats(std::span<const StoredRecord> records, Scaling scaling, double* pOut);
void longsAsFloat(std::span<const StoredRecord> records, Scaling scaling, double* pOut);
void unsignedLongsAsFloat(std::span<const StoredRecord> records, Scaling scaling, double* pOut);
void unsignedLongs(std::span<const StoredRecord> records, Scaling scaling, double* pOut);
void shorts(std::span<const StoredRecord> records, Scaling scaling, double* pOut);
void unsignedShorts(std::span<const StoredRecord> records, Scaling scaling, double* pOut);
void chars(std::span<const StoredRecord> records, Scaling scaling, double* pOut);
void unsignedChars(std::span<const StoredRecord> records, Scaling scaling, double* pOut);

} // namespace ZARN::Kernels
