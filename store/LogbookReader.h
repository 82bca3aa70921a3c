#pragma once

#include "card/CycleNote.h"
#include "store/LogbookIndex.h"
#include "store/Service.h"
#include "store/StoreReader.h"

#include <limits>
#include <span>

namespace ZARN {

/// A flight as a line of the logbook.
struct LogbookEntry {
    int64_t flight = 0; ///< flight_id; 0: there is no such flight any more
    std::string cycleId;
    std::string dateTime; ///< empty: no clock
    std::string engine;
    std::string aircraft;
    std::string cardPath;
    std::string cardName;
    int cycle = 0;  ///< its number on that card
    int number = 0; ///< from 1
    double flightTime = 0.0;
    std::optional<double> fuel;  ///< litres
    std::optional<double> climb; ///< metres
    EVerdict verdict = EVerdict::eUnknown; ///< of this flight
    EVerdict whole = EVerdict::eUnknown;   ///< of its cycle
    QString notes;                         ///< of the cycle, those of the time of this flight, in one line
};

/// An engine of the store, and how long it ran.
struct LogbookEngine {
    std::string id;
    std::string aircraft;
    std::string type;
    std::size_t flights = 0;
    double running = 0.0;                 ///< seconds in all its recordings, each once
    std::size_t unknownCycles = 0;        ///< that do not tell whether it ran
    double unknownTime = 0.0;             ///< seconds that these lasted
    RecordingCopies::Engine recordings;
    std::optional<double> hoursBefore;    ///< typed: before the first recording
    std::optional<double> counter;        ///< most hours that the unit told
    QDateTime counterDate;
    std::vector<LogbookEngine> merged; ///< engines that the user said are this one: what was typed of them
    bool hasSerial = false;
    bool isLossy = false; ///< recordings of it may have been lost, and nobody has entered its hours since

    /// Hours before the first recording and those that it ran since.
    [[nodiscard]] double hours() const { return hoursBefore.value_or(0.0) + running / 3600; }
    /// Hours that it may have run besides.
    [[nodiscard]] double uncounted() const { return isLossy ? std::numeric_limits<double>::infinity() : unknownTime / 3600; }
};

/// A note with what it is about.
struct LogbookNote {
    CycleNote note;
    std::string cycleId;
    std::string engine; ///< empty: the store does not have that cycle
    std::string card;
    int cycle = 0;
    std::string dateTime; ///< of the cycle
    std::string aircraft = {}; ///< that the engine is in; empty: not told
};

/// A flight of a cycle.
struct CycleFlight {
    std::string cycleId;
    int flight = 0; ///< from 1; 0: the whole cycle
};

/// What the logbook shows of a store that others may write meanwhile. For one thread.
class LogbookReader {
public:
    explicit LogbookReader(const std::string& path);

    /// "PATH: reason" of the first failure; else empty.
    [[nodiscard]] const std::string& error() const { return mDatabase.error(); }
    [[nodiscard]] bool isDamaged() const { return mDatabase.failure() == Database::eDamaged; }
    /// Whether the file is still the one of that name.
    [[nodiscard]] bool isInPlace() const { return mDatabase.isInPlace(); }
    /// Another number when another connection has written.
    [[nodiscard]] int64_t version();

    /// The same store's trends; what fails there has failed here.
    [[nodiscard]] StoreReader trends() { return StoreReader(mDatabase); }
    /// Which cycles are the same recording, as the store is now.
    [[nodiscard]] const RecordingCopies& copies();
    /// @param isAnew the store was written since
    [[nodiscard]] LogbookIndex& index(bool isAnew = false);
    /// Those of these flights, in the same order.
    [[nodiscard]] std::vector<LogbookEntry> entries(std::span<const int64_t> flights);
    [[nodiscard]] std::vector<LogbookEngine> engines();
    [[nodiscard]] std::vector<Service> services(const std::string& engine);
    /// The engine that one is since the user said so; else itself.
    [[nodiscard]] std::string engineOf(const std::string& engine);
    /// Of a cycle; without one, of all.
    [[nodiscard]] std::vector<LogbookNote> notes(const std::string& cycle = {});
    /// A flight, and behind it the same one in copies of the recording.
    [[nodiscard]] std::vector<CycleFlight> sameFlights(const CycleFlight& flight);
    /// Where a cycle was found: folders of cards, the latest first.
    [[nodiscard]] std::vector<std::string> foldersOf(const std::string& cycle);

private:
    [[nodiscard]] QString notesIn(const std::string& cycle, const FieldValue& start, const FieldValue& end);
    void takeCopies(std::vector<LogbookEngine>& engines);
    void readTyped(LogbookEngine& engine);

    Database mDatabase;
    std::optional<RecordingCopies> mCopies;
    int64_t mCopiesVersion = 0;
    std::optional<LogbookIndex> mIndex;
};

} // namespace ZARN
