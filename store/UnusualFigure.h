#pragma once

#include "store/CardFacts.h"
#include "store/StoreReader.h"

#include <QCoreApplication>
#include <QLocale>

namespace ZARN {

/// A figure of a flight that is not as it used to be for this engine, in metric units.
struct UnusualFigure {
    int flight = 0; ///< number, from 1
    KeyValueSource source;
    EFlightPhase phase = EFlightPhase::eGround;
    double median = 0.0;
    TrendJudgement judgement;
};

/// Where the flights of a cycle stand in the order of time among those of a store, whether it has them or not.
[[nodiscard]] std::vector<TrendPoint::Place> placesOf(StoreReader& store, const std::string& engine, const CycleHead& cycle,
                                                      std::span<const RecordFlight> flights);

/// Compares the flights of a reviewed cycle with those before them of the same engine in a store, whether the cycle is in it or not.
/// @param review with key values; @return what is unusual or drifting: the farthest off first
[[nodiscard]] std::vector<UnusualFigure> findUnusual(StoreReader& store, const CycleHead& cycle, std::span<const RecordFlight> flights,
                                                     const CycleReview& review);

/// Tells it to people.
class UnusualText {
    Q_DECLARE_TR_FUNCTIONS(ZARN::UnusualText)

public:
    /// @param context whose unit is wanted; where its profile does not know the parameter, figures stay metric
    UnusualText(QLocale locale, DecodingContext context) : mLocale(std::move(locale)), mContext(std::move(context)) {}
    /// "Oil Temperature A in climb 104 °C, in 30 flights before 92 to 97 °C, and drifting"
    [[nodiscard]] QString sentence(const UnusualFigure& unusual) const;
    /// Of the first so many figures, with the numbers of their flights when wanted, and how many more there are.
    [[nodiscard]] QStringList sentences(std::span<const UnusualFigure> figures, bool namesFlights, std::size_t most) const;

private:
    QLocale mLocale;
    DecodingContext mContext;
};

} // namespace ZARN
