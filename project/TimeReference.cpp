#include "project/TimeReference.h"

#include "app/Numeric.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "app/TimeText.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"

#include <QCoreApplication>

#include <cmath>

namespace ZARN {

namespace {

constexpr double kDay = 86400.0;
constexpr int64_t kDayMilliseconds = 86400000;

QString translated(const char* text)
{
    return QCoreApplication::translate("ZARN::TimeReference", text);
}

} // namespace

ETimeReference TimeReference::wanted(const Property& property)
{
    return static_cast<ETimeReference>(Settings::kTimeReference.get(property));
}

TimeReference TimeReference::of(ETimeReference kind, const QDateTime& powerUp, const std::optional<double>& takeOff)
{
    if (kind == ETimeReference::eClock && powerUp.isValid())
        return {kind, powerUp.time().msecsSinceStartOfDay() / 1000.0};
    if (kind == ETimeReference::eTakeOff && takeOff)
        return {kind, -*takeOff};
    return {};
}

TimeReference TimeReference::of(const Property& property, const CardContainer& container)
{
    const RecordCycle* pCycle = container.loadedCycle();
    std::optional<double> takeOff;
    if (pCycle && !pCycle->flights.empty())
        takeOff = (container.selectedFlightNumber() > 0 ? container.selectedFlight() : pCycle->flights.front()).takeOffTime;
    return of(wanted(property), PowerUp::ofLoaded(container), takeOff);
}

TimeReference TimeReference::of(ETimeReference kind, const LoadedCard& loaded)
{
    std::optional<double> takeOff;
    if (loaded.cycle && !loaded.flights.empty())
        takeOff = (loaded.flightNumber > 0 ? loaded.flight : loaded.flights.front()).takeOffTime;
    return of(kind, loaded.powerUp, takeOff);
}

double TimeReference::told(double seconds) const
{
    const double told = seconds + mShift;
    return mKind == ETimeReference::eClock ? told - std::floor(told / kDay) * kDay : told;
}

double TimeReference::meant(double told, double from) const
{
    const double seconds = told - mShift;
    return mKind == ETimeReference::eClock ? seconds + std::ceil((from - seconds) / kDay) * kDay : seconds;
}

int64_t TimeReference::toldMilliseconds(int64_t milliseconds) const
{
    const int64_t told = milliseconds + std::llround(mShift * 1000);
    if (mKind != ETimeReference::eClock)
        return told;
    const int64_t rest = told % kDayMilliseconds;
    return rest < 0 ? rest + kDayMilliseconds : rest;
}

QString TimeReference::text(int64_t milliseconds) const
{
    return signedTimeText(toldMilliseconds(milliseconds));
}

QString TimeReference::textAt(double seconds) const
{
    return text(wholeMilliseconds(seconds));
}

QString TimeReference::shortText(double seconds) const
{
    const auto told = saturatingCast<int64_t>(std::floor(this->told(seconds)));
    if (mKind == ETimeReference::eClock)
        return timeOfDayText(told * 1000, false);
    return told < 0 && mKind == ETimeReference::eTakeOff ? '-' + elapsedText(-told, 0) : elapsedText(told, 0);
}

QString TimeReference::sentence() const
{
    switch (mKind) {
    case ETimeReference::eClock: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Times are those of the recorder's clock."));
    case ETimeReference::eTakeOff: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Times count from the take-off."));
    default: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Times count from the unit's power-up."));
    }
}

QString TimeReference::title() const
{
    switch (mKind) {
    case ETimeReference::eClock: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Clock"));
    case ETimeReference::eTakeOff: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Since take-off"));
    default: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Time"));
    }
}

const char* TimeReference::heading() const
{
    switch (mKind) {
    case ETimeReference::eClock: return "Clock";
    case ETimeReference::eTakeOff: return "Time since take-off";
    default: return "Time";
    }
}

QString TimeReference::name(ETimeReference kind)
{
    switch (kind) {
    case ETimeReference::eClock: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Clock as recorded"));
    case ETimeReference::eTakeOff: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Since take-off"));
    default: return translated(QT_TRANSLATE_NOOP("ZARN::TimeReference", "Since power-up"));
    }
}

} // namespace ZARN
