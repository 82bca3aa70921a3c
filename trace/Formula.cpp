#include "trace/Formula.h"

#include "trace/FormulaReader.h"

namespace ZARN {

Formula::Formula(const std::string& text, const ProfileModel& model, const std::string& self)
{
    FormulaReader(*this, text, model, self).read();
    begin();
}

void Formula::begin()
{
    for (FormulaStep& step : mSteps)
        step.begin();
}

double Formula::at(double time)
{
    mTime = time;
    for (FormulaStep& step : mSteps)
        step.evaluate(time);
    return mParser.Eval();
}

} // namespace ZARN
