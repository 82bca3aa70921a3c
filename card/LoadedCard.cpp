#include "card/LoadedCard.h"

namespace ZARN {

LoadedCard LoadedCard::withFlight(int number) const
{
    const bool isFlight = cycle && number > 0 && number <= static_cast<int>(flights.size());
    LoadedCard other = *this;
    other.flightNumber = isFlight ? number : 0;
    if (other.flightNumber == flightNumber)
        return other;
    other.flight = {};
    other.flight.dateTime = powerUp;
    other.flight.startTime = wholeStart;
    other.flight.endTime = wholeEnd;
    if (isFlight)
        other.flight = flights[static_cast<std::size_t>(number) - 1];
    other.startTime = other.flight.startTime;
    other.endTime = other.flight.endTime;
    FlightPath path;
    path.build(*pRecord, context);
    if (isFlight)
        path.crop(other.startTime, other.endTime);
    other.pPath = path.shared();
    return other;
}

} // namespace ZARN
