#pragma once

#include <QDate>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>

namespace ZARN {

/// What has to be done to an engine again and again. A plain value.
struct Service {
    int64_t id = 0; ///< in the store; 0 before it is kept
    std::string engine;
    QString name;
    std::optional<double> everyHours; ///< engine hours
    std::optional<int> everyMonths;
    std::optional<double> doneHours; ///< the engine's hours when it was done last; none: never
    QDate doneDate;
    QString note;
};

/// When a service has to be done.
struct ServiceDue {
    enum EState { eUnknown, eFine, eSoon, eOverdue };

    EState state = eUnknown;
    std::optional<double> hoursLeft; ///< negative: so many too many
    QDate date;                      ///< by the months; invalid without an interval, or when it was never done

    static constexpr double kSoonHours = 10.0;
    static constexpr int kSoonDays = 30;
};

/// @param hours of the engine, where they are known
[[nodiscard]] ServiceDue dueOf(const Service& service, std::optional<double> hours, const QDate& today);

} // namespace ZARN
