#include "app/Timer.h"

#include "app/Console.h"
#include "vesk/base/Timer.h"

#include <utility>

namespace ZARN {

Timer::Timer(std::string label) : Timer(std::move(label), Console::standardOutput(), &VESK::Misc::Timer::getTime) {}

Timer::Timer(std::string label, const Console& console, Clock clock)
    : mLabel(std::move(label)), mConsole(console), mClock(clock), mStart(clock())
{
}

Timer::~Timer()
{
    mConsole.print("%s : %g ms\n", mLabel.c_str(), (mClock() - mStart) * 1000.0);
}

} // namespace ZARN
