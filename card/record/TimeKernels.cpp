#include "card/record/TimeKernels.h"

#include "app/FmaClones.h"

namespace ZARN {

ZARN_FMA_CLONES void recordTimes(std::span<const StoredRecord> records, double* pOut)
{
    for (const StoredRecord& record : records)
        *pOut++ = record.time();
}

} // namespace ZARN
