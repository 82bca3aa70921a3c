#include "ui/data/model/ReplaySpeed.h"

#include <algorithm>
#include <iterator>

namespace ZARN {

namespace {

constexpr double kSteps[] = {kSlowestReplay, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, kFastestReplay};
constexpr double kSame = 0.005; // half of what is shown

} // namespace

double steppedSpeed(double speed, int steps)
{
    for (; steps > 0; --steps)
        speed = *std::find_if(std::begin(kSteps), std::prev(std::end(kSteps)), [speed](double step) { return step > speed + kSame; });
    for (; steps < 0; ++steps)
        speed = *std::find_if(std::rbegin(kSteps), std::prev(std::rend(kSteps)), [speed](double step) { return step < speed - kSame; });
    return speed;
}

} // namespace ZARN
