#include "trace/FormulaCheck.h"

#include "trace/Formula.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

namespace {

struct FormulaTexts {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FormulaCheck)
};

auto limitsOf(const FormulaDefinition& formula)
{
    return std::array{formula.lowerLimit, formula.lowerWarning, formula.upperWarning, formula.upperLimit};
}

bool areNumbers(const FormulaDefinition& formula)
{
    return std::ranges::all_of(limitsOf(formula), [](const auto& limit) { return std::isfinite(limit.value_or(0.0)); });
}

bool areOrdered(const FormulaDefinition& formula)
{
    double last = -HUGE_VAL;
    for (const auto& limit : limitsOf(formula)) {
        if (limit && *limit < last)
            return false;
        last = limit.value_or(last);
    }
    return true;
}

} // namespace

std::optional<FormulaProblem> checkFormula(const FormulaDefinitions& formulas, std::size_t which, const ProfileModel& profile)
{
    using enum FormulaProblem::EField;
    const FormulaDefinition& formula = formulas[which];
    if (formula.name.empty())
        return FormulaProblem{eName, FormulaTexts::tr("A formula needs a name.")};
    if (profile.find(formula.name))
        return FormulaProblem{eName, FormulaTexts::tr("The profile has a parameter of this name.")};
    for (std::size_t i = 0; i < which; ++i) {
        if (formulas[i].name == formula.name)
            return FormulaProblem{eName, FormulaTexts::tr("Another formula has this name.")};
    }
    if (formula.expression.empty())
        return FormulaProblem{eExpression, FormulaTexts::tr("What is it computed by?")};
    try {
        const ProfileModel model(profile, formulas);
        const Formula compiled(formula.expression, model, formula.name);
    } catch (const FormulaError& error) {
        const QString before = QString::fromStdString(formula.expression.substr(0, error.place()));
        return FormulaProblem{eExpression, error.text(), static_cast<int>(before.size())};
    }
    if (!areNumbers(formula))
        return FormulaProblem{eLimits, FormulaTexts::tr("A limit is no number; thousands stand without a separator.")};
    if (!areOrdered(formula))
        return FormulaProblem{eLimits, FormulaTexts::tr("The limits do not ascend.")};
    return std::nullopt;
}

} // namespace ZARN
