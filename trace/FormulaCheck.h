#pragma once

#include "profile/ProfileModel.h"

#include <QString>

#include <optional>

namespace ZARN {

/// What keeps a formula from being computed, as a sentence.
struct FormulaProblem {
    enum class EField { eName, eExpression, eLimits };
    EField field;
    QString text;
    int place = 0; ///< character of the expression
};

/// Checks one of several formulas against the profile that they are to stand behind.
/// @param profile without formulas  @return the first problem; none when it can be computed
std::optional<FormulaProblem> checkFormula(const FormulaDefinitions& formulas, std::size_t which, const ProfileModel& profile);

} // namespace ZARN
