#pragma once

#include "analysis/TimeSpan.h"
#include "store/CardFacts.h"
#include "store/Database.h"

#include <unordered_map>
#include <unordered_set>

namespace ZARN {

/// A power cycle that the user looks at, whether a store has it or not.
struct ShownRecording {
    CycleHead cycle;
    QDateTime powerUp;
    TimeSpan span; ///< seconds since power-up
};

/// Which cycles of a store are the same recording. A card that was copied again when it had lost its oldest file, or while it was being
/// written, holds a part of a recording that is there whole from elsewhere, under another identifier, since that is made of the files. The unit
/// was switched on once at that moment: the longest one counts, another one with what it has beyond that. Of a clock that begins at the same
/// date each time it tells nothing. Stays as it was when it was read.
class RecordingCopies {
public:
    /// A cycle of which another one holds a part at least.
    struct Copy {
        std::string of; ///< the cycle that counts
        std::string engine;
        std::optional<double> running; ///< as it stands in the store
        std::optional<double> counted; ///< what the engine ran in it at the least while the others did not record
        std::size_t flights = 0;       ///< those that the others tell
    };
    struct Engine {
        std::size_t several = 0;     ///< recordings of which there are copies
        std::size_t overlapping = 0; ///< recordings that began before another one of the same engine had ended
        std::size_t clockBacks = 0;  ///< how often a card's next recording began before the one ahead of it had ended
    };

    explicit RecordingCopies(Database& database);
    /// Those of an engine. @param shown others are copies of that one, however long they are
    RecordingCopies(Database& database, const std::string& engine, const std::optional<ShownRecording>& shown);

    /// Null: it counts as it is.
    [[nodiscard]] const Copy* copy(const std::string& cycleId) const;
    [[nodiscard]] const std::unordered_map<std::string, Copy>& copies() const { return mCopies; }
    /// The cycles that are the same recording as one, itself among them.
    [[nodiscard]] std::vector<std::string> same(const std::string& cycleId) const;
    [[nodiscard]] Engine engine(const std::string& id) const;
    /// Whether the recording that counts in its place tells a flight.
    [[nodiscard]] bool isToldElsewhere(int64_t flight) const { return mFlights.contains(flight); }

private:
    struct Row {
        int64_t id = 0; ///< 0: it is not in the store
        double powerUp = 0.0;
        TimeSpan span;
        std::optional<double> running;
        std::optional<int64_t> card = {};
        int64_t number = 0; ///< of the cycle on the card
        std::optional<int64_t> ecu = {};
        bool isShown = false;
        std::string cycleId = {}; ///< of those that are compared
    };
    using Rows = std::vector<Row>;
    static void add(const Statement& found, Rows& rows);
    void addShown(const ShownRecording& shown, Rows& rows);
    void resolve(const std::string& engine, Rows& rows);
    void resolveMoment(const std::string& engine, Rows rows, Rows& counted);
    void keepFlights(Copy& copy, const std::string& cycleId, const std::vector<TimeSpan>& told);
    void countOverlaps(const std::string& engine, Rows& counted);
    void countClockBacks(const std::string& engine, const Rows& rows);
    [[nodiscard]] bool isClockSet(const Rows& rows);
    void readNames(Rows& rows);
    [[nodiscard]] static bool isSame(const Row& row, const Row& other);

    Database& mDatabase;
    std::unordered_map<std::string, Copy> mCopies;
    std::unordered_map<std::string, Engine> mEngines;
    std::unordered_multimap<std::string, std::string> mCopiesOf; ///< by the cycle that counts
    std::unordered_set<int64_t> mFlights;
};

} // namespace ZARN
