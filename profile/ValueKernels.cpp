#include "profile/ValueKernels.h"

#include "app/FusedMultiplyAdd.h"
#include "card/record/ByteOrder.h"
#include "card/record/TimeKernels.h"

#include <bit>
#include <cmath>

namespace ZARN::Kernels {

namespace {

template <typename Word, typename Raw>
[[gnu::always_inline]] inline void scaleAll(std::span<const StoredRecord> records, Scaling scaling, double* pOut, Raw raw)
{
    for (std::size_t i = 0; i < records.size(); ++i) {
        __builtin_prefetch(records.data() + i + kFetchAhead);
        const Word word = loadBigEndian<Word>(records[i].payload.data() + scaling.startByte);
        pOut[i] = std::fma(scaling.factor, raw(word), scaling.offset);
    }
}

} // namespace

ZARN_FUSED_MULTIPLY_ADD void floats(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint32_t>(records, scaling, pOut, [](uint32_t word) { return static_cast<double>(std::bit_cast<float>(word)); });
}

ZARN_FUSED_MULTIPLY_ADD void longsAsFloat(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint32_t>(records, scaling, pOut,
                       [](uint32_t word) { return static_cast<double>(static_cast<float>(static_cast<int32_t>(word))); });
}

ZARN_FUSED_MULTIPLY_ADD void unsignedLongsAsFloat(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint32_t>(records, scaling, pOut, [](uint32_t word) { return static_cast<double>(static_cast<float>(word)); });
}

ZARN_FUSED_MULTIPLY_ADD void unsignedLongs(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint32_t>(records, scaling, pOut, [](uint32_t word) { return static_cast<double>(word); });
}

ZARN_FUSED_MULTIPLY_ADD void shorts(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint16_t>(records, scaling, pOut, [](uint16_t word) { return static_cast<double>(static_cast<int16_t>(word)); });
}

ZARN_FUSED_MULTIPLY_ADD void unsignedShorts(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint16_t>(records, scaling, pOut, [](uint16_t word) { return static_cast<double>(word); });
}

ZARN_FUSED_MULTIPLY_ADD void chars(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint8_t>(records, scaling, pOut, [](uint8_t word) { return static_cast<double>(static_cast<int8_t>(word)); });
}

ZARN_FUSED_MULTIPLY_ADD void unsignedChars(std::span<const StoredRecord> records, Scaling scaling, double* pOut)
{
    scaleAll<uint8_t>(records, scaling, pOut, [](uint8_t word) { return static_cast<double>(word); });
}

} // namespace ZARN::Kernels
