#pragma once

#include "card/RecordFlight.h"

#include <QString>

#include <optional>

namespace ZARN {

/// The figures of a flight's tow statistic, in the order in which they are shown.
enum EFlightFigure {
    eFigureFlightTime,
    eFigureFuelA,
    eFigureFuelB,
    eFigureTotalFuel,
    eFigureMinAltitude,
    eFigureMaxAltitude,
    eFigureTotalClimb,
    eFigureClimbRate,
    eFigureDescendRate,
    eFigureGroundSpeed,
    eFigureTimePer100m,
    eFigureFuelPer100m,
    eFigureTakeOff,
    eFigureTakeOff15m,
    eFigureCount
};

/// What a number of a flight looks like.
enum class EFigureText {
    eGeneral, ///< up to six digits
    eFixed    ///< as many decimals as the figure deserves, for columns
};

/// A figure in seconds, metres, litres, or what these make; none when the recording does not tell it: what it rests on was not
/// found, or there was no climb to divide by.
[[nodiscard]] std::optional<double> flightFigure(const RecordFlight& flight, EFlightFigure figure);

/// The figure with its unit, a duration as "hh:mm:ss" (which wraps after 24 hours); "-" when the recording does not tell it.
[[nodiscard]] QString flightFigureText(const RecordFlight& flight, EFlightFigure figure, EFigureText text = EFigureText::eGeneral);

} // namespace ZARN
