#pragma once

#include "card/CardContainer.h"
#include "store/CardFacts.h"

namespace ZARN {

/// The SHA-256 over the files of a cycle in order: of each its size as decimal text and a line feed, its first and its last 64 KiB.
/// Empty when one of them cannot be read.
[[nodiscard]] std::string cycleIdentity(const std::vector<std::string>& paths);
/// The files of a cycle, in order.
[[nodiscard]] std::vector<std::string> cyclePaths(const RecordCycle& cycle);
/// Whether the files that a cycle was made of are in a folder as they were, whenever they were written. @param files their sizes, by name
[[nodiscard]] bool holdsCycle(const CardListing& folder, const std::map<std::string, int64_t>& files, const std::string& id);
/// The engine that a cycle of a card tells of.
[[nodiscard]] EngineIdentity cycleEngine(const CardContainer& card, const RecordCycle& cycle);
/// The same of a cycle of a card, and whose it is.
[[nodiscard]] CycleHead cycleHead(const CardContainer& card, uint32_t number, const RecordCycle& cycle);

/// The name of the card at a path.
[[nodiscard]] std::string nameOfCard(const std::string& path);
/// The engine of a card of that name that tells neither its serial number nor that of its unit.
[[nodiscard]] std::string engineOfCard(const std::string& name);

} // namespace ZARN
