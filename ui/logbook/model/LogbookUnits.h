#pragma once

#include "profile/DisplayUnit.h"

#include <QString>

#include <optional>

namespace ZARN {

/// In what the logbook tells quantities of fuel and heights, which a store has in metric units: as the profile tells the flow of fuel and the
/// altitude in the unit that the user chose.
class LogbookUnits {
public:
    LogbookUnits() = default;
    explicit LogbookUnits(const DecodingContext& context)
    {
        const ProfileModel& model = context.model();
        const QString kPerHour = QStringLiteral("/h");
        const DisplayUnit flow(context, model.ofZarnType("FuelA").name, "l/h"), height(context, model.ofZarnType("Altitude").name, "m");
        if (const QString unit = QString::fromStdString(flow.unit()); unit.endsWith(kPerHour)) {
            mFuelUnit = unit.chopped(kPerHour.size());
            mLitre = flow.value(1.0) - flow.value(0.0);
        }
        mClimbUnit = QString::fromStdString(height.unit());
        mMetre = height.value(1.0) - height.value(0.0);
    }

    [[nodiscard]] std::optional<double> fuel(const std::optional<double>& litres) const { return shown(litres, mLitre); }
    [[nodiscard]] std::optional<double> climb(const std::optional<double>& metres) const { return shown(metres, mMetre); }
    [[nodiscard]] const QString& fuelUnit() const { return mFuelUnit; }
    [[nodiscard]] const QString& climbUnit() const { return mClimbUnit; }
    bool operator==(const LogbookUnits&) const = default;

private:
    static std::optional<double> shown(const std::optional<double>& metric, double factor) { return metric ? std::optional(*metric * factor) : std::nullopt; }

    double mLitre = 1.0;
    double mMetre = 1.0;
    QString mFuelUnit = QStringLiteral("l");
    QString mClimbUnit = QStringLiteral("m");
};

} // namespace ZARN
