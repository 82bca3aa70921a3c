#pragma once

#include <QDate>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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
    bool isOfOtherCount = false; ///< its hours are those of an engine that people said later is this one: how many of this one is not known
};

/// When a service has to be done.
struct ServiceDue {
    enum EState {
        eUnknown,
        eFine,
        eInDoubt, ///< it may be due: hours are not counted, or are those of another count, or nobody has entered when it was done
        eSoon,
        eOverdue
    };

    EState state = eUnknown;
    std::optional<double> hoursLeft; ///< negative: so many too many
    bool isAtMost = false;           ///< they may be less
    std::optional<double> knownHours; ///< of the engine, where it was done at more
    bool isOfOtherCount = false;      ///< its hours are those of another engine
    QDate date;                       ///< by the months; invalid without an interval, or when it was never done
    bool isDateOver = false;

    static constexpr double kRounded = 0.1; ///< hours are entered with one decimal
    static constexpr double kSoonHours = 10.0;
    static constexpr int kSoonDays = 30;
};

/// @param hours of the engine, where they are known. @param uncounted hours that it may have run besides; infinite where that is not known
[[nodiscard]] ServiceDue dueOf(const Service& service, std::optional<double> hours, const QDate& today, double uncounted = 0.0);

/// Puts services in order of urgency. @param hours, today, uncounted as above
void sortByUrgency(std::vector<Service>& services, std::optional<double> hours, const QDate& today, double uncounted);

} // namespace ZARN
