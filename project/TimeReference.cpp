#include "project/TimeReference.h"

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

TimeReference TimeReference::of(const Property& property, const CardContainer& container)
{
    const auto kind = static_cast<ETimeReference>(Settings::kTimeReference.get(property));
    if (kind == ETimeReference::eClock) {
        const QDateTime powerUp = PowerUp::ofLoaded(container);
        return powerUp.isValid() ? TimeReference(kind, powerUp.time().msecsSinceStartOfDay() / 1000.0) : TimeReference();
    }
    const RecordCycle* pCycle = container.loadedCycle();
    if (kind != ETimeReference::eTakeOff || !pCycle || pCycle->flights.empty())
        return {};
    const RecordFlight& flight = container.selectedFlightNumber() > 0 ? container.selectedFlight() : pCycle->flights.front();
    return {kind, -flight.takeOffTime};
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
