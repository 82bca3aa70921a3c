#pragma once

#include "analysis/IncidentText.h"
#include "ui/overview/model/CycleOverview.h"

#include <QCoreApplication>

#include <utility>
#include <vector>

namespace ZARN {

/// What the overview says of a cycle, in the user's language.
class OverviewTexts {
    Q_DECLARE_TR_FUNCTIONS(ZARN::OverviewTexts)

public:
    struct Figure {
        QString value;
        QString name;
    };

    /// The verdict in a sentence.
    [[nodiscard]] static QString verdict(const CycleOverview& cycle);
    /// Which cycle it is, when it was, and its flights.
    [[nodiscard]] static QString origin(const CycleOverview& cycle);
    /// Recorded, engine ran, in flight, fuel; "-" for what is not known.
    [[nodiscard]] static std::vector<Figure> figures(const CycleOverview& cycle);
    /// The incidents, the worst first.
    [[nodiscard]] static std::vector<IncidentSentence> sentences(const CycleOverview& cycle);
    /// What of a sentence stands in its second line.
    [[nodiscard]] static QString detail(const IncidentSentence& sentence);
    /// What somebody wrote about moments of the cycle, and what is unusual of it.
    [[nodiscard]] static QStringList remarks(const CycleOverview& cycle);
    /// What the verdict rests on, what could not be told, and what stood outside while the engine did not run.
    [[nodiscard]] static QString basis(const CycleOverview& cycle);
    /// The text with places where a line may end in words that no line has room for, and none between a number and its unit.
    [[nodiscard]] static QString breakable(const QString& text);
    /// All of it as text, for other programs.
    [[nodiscard]] static QString plain(const CycleOverview& cycle);

private:
    static QString troubles(const CycleOverview& cycle);
};

} // namespace ZARN
