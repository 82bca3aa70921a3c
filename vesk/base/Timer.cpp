#include "vesk/base/Timer.h"

#include <chrono>

namespace VESK::Misc {

double Timer::getTime()
{
    using namespace std::chrono;
    const auto now = duration_cast<microseconds>(system_clock::now().time_since_epoch());
    return static_cast<double>(now.count()) / 1e6;
}

} // namespace VESK::Misc
