#pragma once

#include "profile/ProfileModel.h"
#include "trace/FormulaStep.h"

#include <deque>
#include <stdexcept>

namespace ZARN {

/// What is wrong with the text of a formula, as a sentence, and where.
class FormulaError : public std::runtime_error {
public:
    FormulaError(std::size_t place, const QString& text) : std::runtime_error(text.toStdString()), mPlace(place) {}
    [[nodiscard]] std::size_t place() const { return mPlace; } ///< byte of the text
    [[nodiscard]] QString text() const { return QString::fromUtf8(what()); }

private:
    std::size_t mPlace;
};

/// A formula over the parameters of a profile: names in quotes, or bare where they are a word; keys as well; "t" is the time in seconds.
/// The operators and functions are those of muParser; delta, integral, avg and lag look back over what was evaluated before, so that one
/// formula serves one pass at a time. Refers to the profile.
class Formula {
public:
    static constexpr std::size_t kLongest = 2000; ///< bytes
    static constexpr double kLongestPast = 3600.0; ///< seconds that avg and lag look back at most

    /// @param self the computed parameter that it belongs to: it may name those of the profile and computed ones before it. Empty for none.
    /// @throw FormulaError
    Formula(const std::string& text, const ProfileModel& model, const std::string& self = {});
    Formula(const Formula&) = delete;
    Formula& operator=(const Formula&) = delete;

    /// What set() numbers; at least one.
    [[nodiscard]] const std::vector<const ProfileParameter*>& operands() const { return mOperands; }
    /// Forgets what was evaluated.
    void begin();
    void set(std::size_t operand, double value) { mVariables[operand] = value; }
    /// Whether at() asks for the time; else any will do.
    [[nodiscard]] bool readsTime() const { return mReadsTime || !mSteps.empty(); }
    /// The value of the formula with the operands as they were set. Times should ascend: one that goes back begins a new past.
    [[nodiscard]] double at(double time);

private:
    friend class FormulaReader;

    std::vector<const ProfileParameter*> mOperands;
    std::deque<double> mVariables; // of the operands; they never move
    std::deque<FormulaStep> mSteps; // each after those that it builds on
    double mTime = 0.0;
    bool mReadsTime = false;
    mu::Parser mParser;
};

} // namespace ZARN
