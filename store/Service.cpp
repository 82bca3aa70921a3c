#include "store/Service.h"

#include <algorithm>

namespace ZARN {

ServiceDue dueOf(const Service& service, std::optional<double> hours, const QDate& today, bool isLossy)
{
    ServiceDue due;
    if (service.everyHours && hours && service.doneHours.value_or(0.0) > *hours + ServiceDue::kRounded) {
        due.knownHours = hours;
        due.state = ServiceDue::eInDoubt;
    } else if (service.everyHours && hours) { // one that was never done is due from the engine's first hour on
        due.isAtMost = isLossy;
        due.hoursLeft = service.doneHours.value_or(0.0) + *service.everyHours - *hours;
        due.state = *due.hoursLeft <= 0 ? ServiceDue::eOverdue : *due.hoursLeft <= ServiceDue::kSoonHours ? ServiceDue::eSoon : ServiceDue::eFine;
        if (isLossy)
            due.state = std::max(due.state, ServiceDue::eInDoubt);
    }
    if (service.everyMonths && service.doneDate.isValid()) {
        due.date = service.doneDate.addMonths(*service.everyMonths);
        const qint64 days = today.daysTo(due.date);
        due.state = std::max(due.state, days < 0 ? ServiceDue::eOverdue : days <= ServiceDue::kSoonDays ? ServiceDue::eSoon : ServiceDue::eFine);
    }
    return due;
}

} // namespace ZARN
