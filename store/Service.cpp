#include "store/Service.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace ZARN {

ServiceDue dueOf(const Service& service, std::optional<double> hours, const QDate& today, double uncounted)
{
    ServiceDue due;
    if (service.everyHours && service.doneHours && service.isOfOtherCount) {
        due.isOfOtherCount = true;
        due.state = ServiceDue::eInDoubt;
    } else if (service.everyHours && hours && service.doneHours.value_or(0.0) > *hours + ServiceDue::kRounded) {
        due.knownHours = hours;
        due.state = ServiceDue::eInDoubt;
    } else if (service.everyHours && hours) { // one that was never done is due from the engine's first hour on
        due.isAtMost = uncounted > ServiceDue::kRounded;
        due.hoursLeft = service.doneHours.value_or(0.0) + *service.everyHours - *hours;
        due.state = *due.hoursLeft <= 0 ? ServiceDue::eOverdue : *due.hoursLeft <= ServiceDue::kSoonHours ? ServiceDue::eSoon : ServiceDue::eFine;
        if (*due.hoursLeft <= uncounted)
            due.state = std::max(due.state, ServiceDue::eInDoubt);
    }
    if (service.everyMonths && service.doneDate.isValid()) {
        due.date = service.doneDate.addMonths(*service.everyMonths);
        const qint64 days = today.daysTo(due.date);
        due.isDateOver = days < 0;
        due.state = std::max(due.state, days < 0 ? ServiceDue::eOverdue : days <= ServiceDue::kSoonDays ? ServiceDue::eSoon : ServiceDue::eFine);
    } else if (service.everyMonths) {
        due.state = std::max(due.state, ServiceDue::eInDoubt);
    }
    return due;
}

void sortByUrgency(std::vector<Service>& services, std::optional<double> hours, const QDate& today, double uncounted)
{
    constexpr double kNever = std::numeric_limits<double>::infinity();
    const auto urgency = [&](const Service& service) {
        const ServiceDue due = dueOf(service, hours, today, uncounted);
        // An hour of an engine passes in about a day or two.
        const double byDate = due.date.isValid() ? static_cast<double>(today.daysTo(due.date)) : kNever;
        const double unknown = due.state == ServiceDue::eInDoubt ? 0.0 : kNever; // it may be due
        return std::tuple(-due.state, std::min(due.hoursLeft.value_or(unknown), byDate));
    };
    std::ranges::stable_sort(services, {}, urgency);
}

} // namespace ZARN
