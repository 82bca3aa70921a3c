#include "trace/FormulaReader.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr const char* kTime = "t";
constexpr int kDeepest = 16; // calls that look back within each other
constexpr int kMostBrackets = 100;
const std::map<std::string, FormulaStep::EKind> kSteps = {{"delta", FormulaStep::EKind::eDelta},
                                                          {"integral", FormulaStep::EKind::eIntegral},
                                                          {"avg", FormulaStep::EKind::eAverage},
                                                          {"lag", FormulaStep::EKind::eLag}};

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isWord(char c)
{
    return isLetter(c) || isDigit(c);
}

bool hasPast(FormulaStep::EKind kind)
{
    return kind == FormulaStep::EKind::eAverage || kind == FormulaStep::EKind::eLag;
}

QString shown(const std::string& name)
{
    return QString::fromStdString(name).left(60);
}

QString told(const mu::ParserError& error)
{
    switch (error.GetCode()) {
    case mu::ecUNASSIGNABLE_TOKEN:
        return FormulaReader::tr("\"%1\" is no parameter, function or number.").arg(shown(error.GetToken()));
    case mu::ecEMPTY_EXPRESSION:
    case mu::ecUNEXPECTED_EOF: return FormulaReader::tr("The formula ends too early.");
    case mu::ecMISSING_PARENS: return FormulaReader::tr("A closing bracket is missing.");
    case mu::ecUNEXPECTED_PARENS: return FormulaReader::tr("No bracket can stand here.");
    case mu::ecTOO_MANY_PARAMS:
    case mu::ecTOO_FEW_PARAMS: return FormulaReader::tr("The function takes another number of arguments.");
    default: return FormulaReader::tr("\"%1\" cannot stand here.").arg(shown(error.GetToken()));
    }
}

FormulaError errorOf(const mu::ParserError& error, std::size_t end)
{
    // The parser works on a text of its own that is longer.
    return {std::min(static_cast<std::size_t>(std::max(0, static_cast<int>(error.GetPos()))), end), told(error)};
}

} // namespace

void FormulaReader::read()
{
    if (mText.size() > Formula::kLongest)
        throw FormulaError(Formula::kLongest, tr("The formula is longer than %1 characters.").arg(Formula::kLongest));
    mNames[kTime] = &mFormula.mTime;
    takeNames();
    takeSteps(0, mText.size(), 0);
    mFormula.mParser = parser(0, mText.size());
    if (mFormula.mOperands.empty())
        throw FormulaError(0, tr("The formula names no parameter."));
}

/// Names become variables; what no formula may hold is refused.
void FormulaReader::takeNames()
{
    int brackets = 0;
    for (std::size_t i = 0; i < mText.size();) {
        const char c = mText[i];
        brackets = c == '(' ? brackets + 1 : brackets;
        if (brackets > kMostBrackets)
            throw FormulaError(i, tr("The formula has more than %1 brackets.").arg(kMostBrackets));
        if (c == '"' || c == '\'') {
            i = takeQuoted(i);
        } else if (isLetter(c)) {
            i = takeWord(i);
        } else if (isDigit(c) || c == '.') {
            i = takeNumber(i);
        } else if (std::string_view("+-*/^()<>!&|?:, \t\r\n").find(c) != std::string_view::npos) {
            mText[i] = c == '\t' || c == '\r' || c == '\n' ? ' ' : c;
            i += std::string_view("<>!").find(c) != std::string_view::npos && mText[i + 1] == '=' ? 2 : 1;
        } else if (c == '=' && mText[i + 1] == '=') {
            i += 2;
        } else if (c == '=') {
            throw FormulaError(i, tr("Two equal signs compare: \"==\"."));
        } else {
            throw FormulaError(i, tr("This character cannot stand in a formula; names with such characters stand in quotes."));
        }
    }
}

std::size_t FormulaReader::takeQuoted(std::size_t begin)
{
    const std::size_t end = mText.find(mText[begin], begin + 1);
    if (end == std::string::npos)
        throw FormulaError(begin, tr("The closing quote is missing."));
    const std::string name = part(begin + 1, end);
    const ProfileParameter* pParameter = find(name);
    if (!pParameter)
        throw FormulaError(begin, tr("The profile has no parameter \"%1\".").arg(shown(name)));
    takeOperand(begin, end + 1, nextVariable(begin), pParameter);
    return end + 1;
}

std::size_t FormulaReader::takeWord(std::size_t begin)
{
    std::size_t end = begin;
    while (end < mText.size() && isWord(mText[end]))
        ++end;
    const std::string name = part(begin, end);
    const std::size_t next = mText.find_first_not_of(" \t\r\n", end);
    const bool isCall = next != std::string::npos && mText[next] == '(';
    mFormula.mReadsTime |= name == kTime;
    if (isCall || name == kTime)
        return end;
    if (const ProfileParameter* pParameter = find(name))
        takeOperand(begin, end, name, pParameter);
    return end; // else a constant of the parser, which tells of unknown names
}

std::size_t FormulaReader::takeNumber(std::size_t begin) const
{
    const auto skipDigits = [this](std::size_t i) {
        while (i < mText.size() && (isDigit(mText[i]) || mText[i] == '.'))
            ++i;
        return i;
    };
    std::size_t end = skipDigits(begin);
    if (end < mText.size() && (mText[end] == 'e' || mText[end] == 'E')) {
        const std::size_t digits = end + (mText[end + 1] == '+' || mText[end + 1] == '-' ? 2 : 1);
        if (digits < mText.size() && isDigit(mText[digits]))
            end = skipDigits(digits);
    }
    return end;
}

const ProfileParameter* FormulaReader::find(const std::string& name) const
{
    const ProfileParameter* pParameter = mModel.find(name);
    if (!pParameter && !name.empty() && !mModel.ofZarnType(name).name.empty())
        pParameter = &mModel.ofZarnType(name);
    return pParameter;
}

void FormulaReader::takeOperand(std::size_t begin, std::size_t end, const std::string& name, const ProfileParameter* pParameter)
{
    const ProfileParameter* pSelf = mSelf.empty() ? nullptr : mModel.find(mSelf);
    // Computed parameters stand side by side, so their addresses are in order.
    if (pSelf && pParameter->isComputed() && !std::less<>()(pParameter, pSelf))
        throw FormulaError(begin, tr("\"%1\" is computed after this formula.").arg(shown(pParameter->name)));
    if (ValueDecoder::rawSize(pParameter->dataType) == 0)
        throw FormulaError(begin, tr("\"%1\" holds no number.").arg(shown(pParameter->name)));
    auto& operands = mFormula.mOperands;
    const auto place = static_cast<std::size_t>(std::ranges::find(operands, pParameter) - operands.begin());
    if (place == operands.size()) {
        operands.push_back(pParameter);
        mFormula.mVariables.push_back(0.0);
    }
    mNames[name] = &mFormula.mVariables[place];
    put(begin, end, name);
}

/// Finds the calls that look back, those within others first.
void FormulaReader::takeSteps(std::size_t begin, std::size_t end, int depth)
{
    if (depth > kDeepest)
        throw FormulaError(begin, tr("More than %1 calls stand within each other.").arg(kDeepest));
    for (std::size_t i = begin; i < end;) {
        if (isDigit(mText[i]) || mText[i] == '.') {
            i = takeNumber(i);
            continue;
        }
        std::size_t last = i;
        while (last < end && isWord(mText[last]))
            ++last;
        const std::size_t open = std::min(mText.find_first_not_of(' ', last), end);
        const auto step = kSteps.find(part(i, last));
        const bool isStep = step != kSteps.end() && open < end && mText[open] == '(';
        i = isStep ? takeStep(i, open, step->second, depth) : std::max(last, i + 1);
    }
}

std::size_t FormulaReader::takeStep(std::size_t name, std::size_t open, FormulaStep::EKind kind, int depth)
{
    std::size_t close = open, comma = 0;
    for (int level = 0; close < mText.size(); ++close) {
        level += mText[close] == '(' ? 1 : mText[close] == ')' ? -1 : 0;
        if (level == 0)
            break;
        if (level == 1 && mText[close] == ',')
            comma = comma == 0 ? close : mText.size();
    }
    if (close >= mText.size())
        throw FormulaError(open, tr("A closing bracket is missing."));
    if ((comma != 0) != hasPast(kind) || comma == mText.size())
        throw FormulaError(name, hasPast(kind) ? tr("It takes two arguments: the value and the seconds.") : tr("It takes one argument."));
    const std::size_t argument = comma != 0 ? comma : close;
    takeSteps(open + 1, argument, depth + 1);
    const double past = comma != 0 ? seconds(comma + 1, close) : 0.0;
    mFormula.mSteps.emplace_back(kind, parser(open + 1, argument), past);
    const std::string variable = nextVariable(name);
    mNames[variable] = mFormula.mSteps.back().value();
    put(name, close + 1, variable);
    return close + 1;
}

double FormulaReader::seconds(std::size_t begin, std::size_t end) const
{
    double seconds = 0;
    try {
        mu::Parser parser;
        parser.SetExpr(std::string(begin, ' ') + part(begin, end));
        seconds = parser.Eval();
    } catch (const mu::ParserError&) {
        throw FormulaError(begin, tr("The seconds are a number."));
    }
    if (!(seconds > 0 && seconds <= Formula::kLongestPast))
        throw FormulaError(begin, tr("The seconds lie above 0, up to %1.").arg(Formula::kLongestPast));
    return seconds;
}

/// Three characters: no longer than what it stands for.
std::string FormulaReader::nextVariable(std::size_t place)
{
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    if (mVariables == kLetters.size())
        throw FormulaError(place, tr("The formula has more than %1 names in quotes and calls that look back.").arg(kLetters.size()));
    return std::string("__") + kLetters[mVariables++];
}

void FormulaReader::put(std::size_t begin, std::size_t end, const std::string& variable)
{
    mText.replace(begin, end - begin, variable + std::string(end - begin - variable.size(), ' '));
}

std::string FormulaReader::part(std::size_t begin, std::size_t end) const
{
    return mText.substr(begin, end - begin);
}

mu::Parser FormulaReader::parser(std::size_t begin, std::size_t end) const
{
    try {
        mu::Parser parser;
        for (const auto& [name, pValue] : mNames)
            parser.DefineVar(name, pValue);
        parser.SetExpr(std::string(begin, ' ') + part(begin, end));
        parser.Eval(); // reads the text
        if (parser.GetNumResults() != 1)
            throw FormulaError(begin, tr("A comma separates arguments of functions; a number has a decimal point."));
        return parser;
    } catch (const mu::ParserError& error) {
        throw errorOf(error, end);
    }
}

} // namespace ZARN
