#pragma once

#include "trace/Formula.h"

#include <QCoreApplication>

namespace ZARN {

/// Makes what a formula is evaluated by of its text. Names and calls that look back become variables of the library's parser, each at its
/// place in the text, so that the places that the parser tells are those of the text.
class FormulaReader {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FormulaReader)

public:
    FormulaReader(Formula& formula, const std::string& text, const ProfileModel& model, const std::string& self)
        : mFormula(formula), mText(text), mModel(model), mSelf(self)
    {
    }
    /// @throw FormulaError
    void read();

private:
    void takeNames();
    std::size_t takeQuoted(std::size_t begin);
    std::size_t takeWord(std::size_t begin);
    std::size_t takeNumber(std::size_t begin) const;
    [[nodiscard]] const ProfileParameter* find(const std::string& name) const;
    void takeOperand(std::size_t begin, std::size_t end, const std::string& name, const ProfileParameter* pParameter);
    void takeSteps(std::size_t begin, std::size_t end, int depth);
    std::size_t takeStep(std::size_t name, std::size_t open, FormulaStep::EKind kind, int depth);
    [[nodiscard]] double seconds(std::size_t begin, std::size_t end) const;
    [[nodiscard]] std::string nextVariable(std::size_t place);
    void put(std::size_t begin, std::size_t end, const std::string& variable);
    [[nodiscard]] mu::Parser parser(std::size_t begin, std::size_t end) const;
    [[nodiscard]] std::string part(std::size_t begin, std::size_t end) const;

    Formula& mFormula;
    std::string mText;
    const ProfileModel& mModel;
    const std::string& mSelf;
    std::map<std::string, double*> mNames; // of the parser's variables
    std::size_t mVariables = 0;
};

} // namespace ZARN
