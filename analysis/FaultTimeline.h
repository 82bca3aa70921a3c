#pragma once

#include "card/record/RecordChannel.h"
#include "profile/FaultMatrix.h"
#include "trace/Trace.h"

#include <array>
#include <optional>

namespace ZARN {

/// From a time on, faults of one kind are present or absent.
struct FaultChange {
    float time = 0.0F; ///< seconds since power-up
    bool on = false;
};

/// The word of fault bits that a message of an error matrix carries: its four data bytes. Bit 0 is the least significant.
[[nodiscard]] uint32_t faultWord(const Payload& payload);

/// The word that an error matrix shows at a time: that of the sample before the first one that is more than 0.01 s later; the last
/// one when none is later, for nothing says that it ended. None when the very first one is later. Logarithmic, also where times go
/// backwards.
/// @param pChannel the samples of the matrix; null when it has none.
[[nodiscard]] std::optional<uint32_t> faultWordAt(const RecordChannel* pChannel, double seconds);

/// When faults of each kind were present in an error matrix over a loaded cycle. A plain value. Bits that the matrix does not
/// define, and bits of no known kind, count for nothing.
class FaultTimeline {
public:
    FaultTimeline() = default;
    /// @param words the words of the matrix, faultWords()
    FaultTimeline(const FaultMatrix& matrix, const Trace& words);

    /// The change points of eErrorInfo, eErrorWarning or eErrorFault: one at the first sample, one where the state differs from
    /// the one before, a closing one at the last sample. Empty without samples.
    [[nodiscard]] const std::vector<FaultChange>& changes(EErrorType kind) const { return mChanges[static_cast<std::size_t>(kind - 1)]; }

private:
    static constexpr std::size_t kKinds = 3; // info, warning, fault
    void append(std::size_t kind, double time, uint32_t word);

    std::array<uint32_t, kKinds> mMasks{};
    std::array<std::vector<FaultChange>, kKinds> mChanges;
};

} // namespace ZARN
