#pragma once

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
    /// What the verdict rests on: how much of what is watched was recorded, what could not be told, and what stood outside while the
    /// engine did not run.
    [[nodiscard]] static QString basis(const CycleOverview& cycle);
    /// The watched parameters that were not recorded, a line each of some; empty when there are none.
    [[nodiscard]] static QString missing(const CycleOverview& cycle);
    /// "0:12:26", with as many hours as there are.
    [[nodiscard]] static QString clock(double seconds);
    /// All of it as text, for other programs.
    [[nodiscard]] static QString plain(const CycleOverview& cycle);

private:
    static QString troubles(const CycleOverview& cycle);
    static QString unknown(const CycleOverview& cycle);
};

} // namespace ZARN
