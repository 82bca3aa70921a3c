#pragma once

#include "analysis/Incident.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <functional>

namespace ZARN {

/// Incidents that are told in one sentence, in parts that a window can lay out.
struct IncidentSentence {
    int state = 0;                      ///< the greatest of them: 1 warning, 2 limit
    std::vector<std::size_t> incidents; ///< their places in the review, ascending; never empty
    double start = 0.0;                 ///< of the first, in seconds since power-up
    double end = 0.0;                   ///< the latest
    QString time;                       ///< the start, "12:26"
    QString what;                       ///< "Manifold Pressure 1,587 hPa, limit 1,560, for 9 s in take-off"
    QString with;                       ///< "Boost Lamp red", or empty
    QString when;                       ///< of more than one: "4 times, 17:29 to 19:13"

    /// All but the time: "... for 9 s in take-off, with Boost Lamp red".
    [[nodiscard]] QString text() const;
};

/// Tells incidents as people do: the worst limits first, else faults, else lamps, then what came with them. What the two lanes tell alike
/// is one quantity, and incidents of the same parameters are one sentence.
class IncidentText {
    Q_DECLARE_TR_FUNCTIONS(ZARN::IncidentText)

public:
    using TimeText = std::function<QString(double seconds)>;

    /// @param locale how numbers are written  @param time how times are
    explicit IncidentText(QLocale locale, TimeText timeText = time) : mLocale(std::move(locale)), mTime(std::move(timeText)) {}

    /// One sentence for each set of parameters, the worst first, then by time.
    [[nodiscard]] std::vector<IncidentSentence> sentences(const std::vector<Incident>& incidents) const;
    /// The quantities of episodes, each once, in their order.
    [[nodiscard]] static QStringList names(const std::vector<Episode>& episodes);
    /// The name without the letter of the lane.
    [[nodiscard]] static QString laneless(const QString& name);
    /// Seconds since power-up as "12:26" or "1:02:03".
    [[nodiscard]] static QString time(double seconds);
    /// "9 s", "1 min 5 s" or "1 h 2 min".
    [[nodiscard]] static QString duration(double seconds);
    /// "in climb".
    [[nodiscard]] static QString phaseText(EFlightPhase phase, bool knowsAltitude = true);

private:
    /// Episodes of one kind that tell of one thing.
    struct Quantity {
        QString name;
        std::vector<const Episode*> episodes;

        [[nodiscard]] EEpisodeKind kind() const { return episodes.front()->kind; }
        [[nodiscard]] const Episode& worst() const;
        [[nodiscard]] double duration() const; ///< from the first to the last, in seconds
        [[nodiscard]] double stateTime() const; ///< seconds of it in the worst state
    };
    [[nodiscard]] static std::vector<Quantity> quantities(const std::vector<const Episode*>& episodes);
    [[nodiscard]] IncidentSentence sentence(const std::vector<Incident>& incidents, const std::vector<std::size_t>& places) const;
    [[nodiscard]] QString headText(const Quantity& quantity, bool withDuration) const;
    [[nodiscard]] QString restText(const Quantity& quantity) const;
    [[nodiscard]] QString valueText(const Quantity& quantity, bool withLimit) const;
    [[nodiscard]] QString number(double value, const QString& limit, int precision) const;
    [[nodiscard]] static QString listed(QStringList items, qsizetype most, const QString& separator);

    QLocale mLocale;
    TimeText mTime;
};

} // namespace ZARN
