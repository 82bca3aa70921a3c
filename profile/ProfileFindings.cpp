#include "profile/ProfileFindings.h"

#include <algorithm>
#include <numeric>

namespace ZARN {

namespace {

constexpr qsizetype kLongestName = 60; ///< of those that a sentence repeats

/// How many characters must be changed, added or left out to make one name of the other, whatever their case.
int distance(const QString& one, const QString& other)
{
    std::vector<int> row(static_cast<std::size_t>(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < one.size(); ++i) {
        int diagonal = row[0]++;
        for (qsizetype j = 0; j < other.size(); ++j) {
            int& above = row[static_cast<std::size_t>(j) + 1];
            const int replaced = diagonal + (one[i].toLower() != other[j].toLower());
            diagonal = above;
            above = std::min({replaced, above + 1, row[static_cast<std::size_t>(j)] + 1});
        }
    }
    return row.back();
}

} // namespace

void ProfileFindings::warn(const QDomElement& element, const QString& attribute, const QString& text)
{
    const Key key(mPlaces.of(element, attribute), text);
    if (mFound.size() >= kMost && !mFound.contains(key))
        return;
    std::vector<int>& variants = mFound[key];
    if (mVariant >= 0 && (variants.empty() || variants.back() != mVariant))
        variants.push_back(mVariant);
}

std::vector<ProfileProblem> ProfileFindings::problems(const QStringList& variants) const
{
    std::vector<ProfileProblem> problems;
    for (const auto& [key, numbers] : mFound) {
        QStringList names;
        for (const int number : numbers)
            names << quoted(variants.value(number));
        const bool isForAll = names.isEmpty() || names.size() == variants.size();
        problems.push_back(
            {key.first.line, key.first.column, false, isForAll ? key.second : key.second + " (Variant " + names.join(", ") + ")"});
    }
    if (mFound.size() >= kMost)
        problems.push_back(
            {problems.back().line, problems.back().column, false, "There may be more problems than these: the check ends here."});
    return problems;
}

QString quoted(const QString& text)
{
    return '"' + (text.size() > kLongestName ? text.left(kLongestName) + u'…' : text) + '"';
}

QString thing(const QDomElement& element)
{
    static const std::map<QString, QString> kinds{{"Parameter", "The parameter "},      {"Device", "The device "},
                                                  {"Enum", "The enumeration "},         {"Threshold", "The threshold list "},
                                                  {"ErrorMatrix", "The error matrix "}, {"Variant", "The variant "}};
    const QString tag = element.tagName();
    if (const auto kind = kinds.find(tag); kind != kinds.end())
        return kind->second + quoted(element.attribute("name"));
    if (tag == "Unit")
        return "The conversion of " + quoted(element.attribute("unitMetric")) + " to " + quoted(element.attribute("unitImperial"));
    if (tag == "Value" && element.parentNode().nodeName() == "Threshold")
        return "The boundary " + element.attribute("val").left(kLongestName) + " of the threshold list " +
               quoted(element.parentNode().toElement().attribute("name"));
    if (tag == "Value")
        return "The value " + element.attribute("val").left(kLongestName) + " of the enumeration " +
               quoted(element.parentNode().toElement().attribute("name"));
    return "The element <" + tag.left(kLongestName) + '>';
}

QString isMeant(const QString& name, const QStringList& known)
{
    if (name.isEmpty() || name.size() > kLongestName)
        return {};
    int least = std::min(3, static_cast<int>(name.size()) / 2 + 1);
    QString closest;
    for (const QString& other : known) {
        if (other.size() > kLongestName || other.isEmpty())
            continue;
        if (const int steps = distance(name, other); steps < least) {
            least = steps;
            closest = other;
        }
    }
    return closest.isEmpty() ? QString() : " Is " + quoted(closest) + " meant?";
}

} // namespace ZARN
