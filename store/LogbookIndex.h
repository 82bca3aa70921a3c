#pragma once

#include "analysis/CycleReview.h"
#include "store/RecordingCopies.h"

#include <QDate>

#include <unordered_map>

namespace ZARN {

/// Which flights are wanted; what is empty leaves all.
struct LogbookFilter {
    std::string engine;
    QDate from;
    QDate until; ///< included
    std::string verdict;
    QString text; ///< found in engine, aircraft, card, notes or titles of incidents, whatever its case
};

enum class ELogbookOrder { eDate, eEngine, eFlightTime, eFuel, eClimb, eVerdict };

/// What the flights of a selection come to.
struct LogbookTotals {
    std::size_t flights = 0;
    double flightTime = 0.0;           ///< seconds
    std::optional<double> running;     ///< seconds in which the engine ran, in the cycles of these flights; none where none tells it
    std::optional<double> fuel;        ///< none where none tells it
    std::size_t flightsWithoutFuel = 0;  ///< flights that do not tell it
    std::size_t cyclesWithoutEngine = 0; ///< cycles that do not tell whether it ran
};

/// What a filter leaves, in order.
struct LogbookSelection {
    std::vector<int64_t> flights; ///< flight_id
    LogbookTotals totals;
};

/// What flights are found, put in order and summed up by: all flights of a store in a few bytes each, so that a filter takes no time that
/// anybody notices. Stays as it was when it was read.
class LogbookIndex {
public:
    LogbookIndex(Database& database, const RecordingCopies& copies);

    /// Reads it anew.
    void read(const RecordingCopies& copies);
    [[nodiscard]] LogbookSelection select(const LogbookFilter& filter, ELogbookOrder order, bool isDescending);

private:
    struct Flight {
        int64_t id = 0;
        std::size_t cycle = 0;
        int64_t number = 0;
        std::string at; ///< its place in time, as text
        bool hasDate = false;
        double flightTime = 0.0;
        double fuel = 0.0; ///< NaN: not known
        double climb = 0.0;
        EVerdict verdict = EVerdict::eUnknown;
        TimeSpan span; ///< seconds since power-up
    };
    struct Cycle {
        std::size_t engine = 0;
        std::size_t cardName = 0;
        std::size_t recording = 0; ///< the cycle that counts in place of a copy; else itself
        EVerdict verdict = EVerdict::eUnknown;
        double running = 0.0; ///< what counts; NaN: not known
        int64_t card = 0;
        int64_t number = 0;
        bool hasFuel = false;
    };
    /// Texts that many rows share.
    struct Texts {
        std::vector<QString> texts;
        std::unordered_map<std::string, std::size_t> places;
        std::size_t of(const std::string& text);
    };
    /// What of the rows holds the wanted text.
    struct Found {
        std::vector<bool> engines;
        std::vector<bool> cards;
        std::vector<bool> flights; ///< by their notes and incidents
    };
    void readCycles(const RecordingCopies& copies);
    void readFlights(const RecordingCopies& copies);
    void readVerdicts();
    void place();
    void findNotes(const QString& text, std::vector<bool>& flights);
    void findIncidents(const QString& text, std::vector<bool>& flights);
    [[nodiscard]] Found find(const QString& text);
    [[nodiscard]] std::vector<std::size_t> chosen(const LogbookFilter& filter);
    void sort(std::vector<std::size_t>& places, ELogbookOrder order, bool isDescending) const;
    [[nodiscard]] LogbookTotals totals(const std::vector<std::size_t>& places) const;

    Database& mDatabase;
    std::vector<Flight> mFlights; ///< in order of time
    std::vector<Cycle> mCycles;
    std::unordered_map<std::string, std::size_t> mCycleOf;
    Texts mEngines;
    Texts mCards;
};

} // namespace ZARN
