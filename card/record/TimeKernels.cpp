#include "card/record/TimeKernels.h"

#include "app/FusedMultiplyAdd.h"

namespace ZARN {

ZARN_FUSED_MULTIPLY_ADD void recordTimes(std::span<const StoredRecord> records, double* pOut)
{
    for (const StoredRecord& record : records) {
        __builtin_prefetch(&record + kFetchAhead);
        *pOut++ = record.time();
    }
}

} // namespace ZARN
