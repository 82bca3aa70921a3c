#pragma once

#include "card/CycleValues.h"
#include "store/CardFacts.h"

namespace ZARN {

/// What a scan fills. All but write() is called by any worker at any time.
class ScanTarget {
public:
    virtual ~ScanTarget() = default;
    /// Whether all of a card is there already, as far as its listing tells.
    virtual bool isCurrent(const CardListing& listing) = 0;
    /// Whether a cycle is there already and was worked out as it would be now. @param told what was found wrong with it then, where the
    /// target does not keep that by itself
    virtual bool hasCycle(const CycleHead& cycle, std::vector<CardProblem>& told) = 0;
    /// Takes a cycle while its records are loaded. @return empty, or what failed and why
    virtual std::string takeLoaded(const CardListing& card, const CycleFacts& cycle, const CycleValues& values) = 0;
    /// Forgets that folders could not be listed or held no card: they could, and hold none now. @return empty, or what failed and why
    virtual std::string forgetFailures(const std::vector<std::string>& folders) = 0;
    /// Takes a card as a whole or not at all. Called for one card after the other, in the order of the scan. @return empty, or what failed and
    /// why; the scan then ends
    virtual std::string write(const CardFacts& card) = 0;
};

} // namespace ZARN
