#pragma once

#include "app/XmlPlaces.h"

#include <QStringList>

#include <map>
#include <vector>

namespace ZARN {

/// What is wrong with a profile file, as a full sentence, and where. Line and column count from 1; both are 0 where the file gave no
/// text at all.
struct ProfileProblem {
    int line = 0;
    int column = 0;
    bool isError = false; ///< the file cannot be used; else it loads, but does not say what its author meant
    QString text;
};

/// What a check finds, gathered in the order of the text. Findings that hold for some variants only name them.
class ProfileFindings {
public:
    static constexpr std::size_t kMost = 10000; ///< a damaged file may have millions

    ProfileFindings(const QString& text, const QDomElement& root) : mPlaces(text, root) {}

    /// The number of the variant, from 0, for which the next findings hold; without one they hold for all.
    void setVariant(int number) { mVariant = number; }
    /// @param attribute "" for the element itself.
    void warn(const QDomElement& element, const QString& attribute, const QString& text);
    [[nodiscard]] int lineOf(const QDomElement& element) const { return mPlaces.of(element).line; }
    [[nodiscard]] std::vector<ProfileProblem> problems(const QStringList& variants) const;

private:
    using Key = std::pair<TextPlace, QString>;

    XmlPlaces mPlaces;
    std::map<Key, std::vector<int>> mFound; ///< with the variants; none stands for all
    int mVariant = -1;
};

/// Names of things within sentences.
QString quoted(const QString& text);
/// "The parameter "X"": what an element stands for, by its tag and names.
QString thing(const QDomElement& element);
/// " Is "X" meant?" with the known name that is closest; empty when none is close.
QString isMeant(const QString& name, const QStringList& known);

} // namespace ZARN
