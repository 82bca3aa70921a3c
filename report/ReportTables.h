#pragma once

#include "report/ReportDocument.h"
#include "report/ReportSubject.h"

#include <QCoreApplication>

namespace ZARN {

class EngineRunning;
class EventList;

/// What a report tells in tables: unit, flights, events and faults of the loaded cycle or flight.
class ReportTables {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FlightReport)

public:
    /// @param subject must outlive it
    explicit ReportTables(const ReportSubject& subject) : mLoaded(subject.loaded), mTimes(subject.reference()) {}

    void addUnit(ReportDocument& document) const;
    void addFlights(ReportDocument& document) const;
    void addEvents(ReportDocument& document, const EventList& list, const QString& heading, const QString& nothing,
                   const QStringList& states) const;
    /// @param engine over the whole cycle: while it ran, faults count for the verdict
    void addFaults(ReportDocument& document, const EngineRunning& engine) const;

private:
    [[nodiscard]] ReportTable figures(const std::vector<RecordFlight>& flights, std::size_t first, std::size_t last, int firstNumber) const;
    /// The flights that the report is about: the selected one, or all of the cycle; and their numbers, from 1.
    [[nodiscard]] std::vector<RecordFlight> flights(int& firstNumber) const;
    /// The table, or `nothing` where it has no rows, and how many of them are left out.
    static void add(ReportDocument& document, ReportTable table, const QString& nothing, int more, const QString& note = {});

    const LoadedCard& mLoaded;
    const TimeReference mTimes;
};

} // namespace ZARN
