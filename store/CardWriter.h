#pragma once

#include "store/CardFacts.h"
#include "store/CycleRows.h"
#include "store/Database.h"

#include <map>
#include <optional>

namespace ZARN {

/// Writes what was found on a card into an open store, within a transaction. What went before it stays where it is still true: a recording
/// that is no longer on a card, or not whole any more, remains in the store, one that has grown replaces its beginning, and notes go with it.
class CardWriter {
public:
    CardWriter(Database& database, const AnalysisKey& key) : mDatabase(database), mKey(key) {}

    void write(const CardFacts& card);
    /// Whether a cycle was worked out as it would be now.
    [[nodiscard]] bool hasCycle(const std::string& id);
    /// A folder in which nothing could be read is one that can, and is no card.
    void forgetFailure(const std::string& path);

private:
    /// A file as the store has it.
    struct Known {
        int64_t size = 0;
        std::optional<double> mtime; ///< none where the card could not be read whole
        std::string cycle;

        [[nodiscard]] bool is(const ListedFile& file) const { return size == file.size && mtime.value_or(file.mtime) == file.mtime; }
    };
    using KnownFiles = std::map<std::string, Known>; ///< by name
    [[nodiscard]] KnownFiles knownFiles(int64_t card);
    [[nodiscard]] static std::map<std::string, int64_t> filesOf(const std::string& cycle, const KnownFiles& files);
    int64_t writeCard(const CardFacts& card);
    void writeFiles(int64_t card, const CardFacts& facts);
    void writeProblems(int64_t card, const CardFacts& facts);
    void writeFailure(int64_t card, const CardFacts& facts);
    void insertProblem(int64_t card, const std::string& file, const std::string& reason);
    void writeUnits(const CardFacts& facts);
    void writeCycle(int64_t card, const CycleFacts& cycle);
    void writeReading(const std::string& engine, const HoursReading& reading);
    void writeEngine(const EngineIdentity& engine);
    void joinEngine(const CycleHead& cycle);
    void insert(EStoreTable table, const Row& row);
    /// Whether the one cycle is the other one, of which more was recorded.
    [[nodiscard]] bool isBeginning(const std::string& oldCycle, const std::string& newCycle);
    /// Whether the other one has all of its time.
    [[nodiscard]] bool isCovered(const std::string& cycle, const std::string& byCycle);
    void replace(const std::string& oldCycle, const std::string& newCycle);
    void keepWhole(int64_t card, const std::string& wholeCycle, const std::string& rest);

    Database& mDatabase;
    const AnalysisKey& mKey;
};

} // namespace ZARN
