#include "ui/overview/model/OverviewTexts.h"

#include "app/Numeric.h"

#include <QLocale>

#include <cmath>

namespace ZARN {

namespace {

const QString kNone = QStringLiteral("-");
constexpr int kMissingShown = 20;

} // namespace

QString OverviewTexts::clock(double seconds)
{
    const int whole = saturatingCast<int>(std::floor(std::abs(seconds)));
    return QString("%1%2:%3:%4")
        .arg(seconds < 0 ? "-" : "", QString::number(whole / 3600), QString("%1").arg(whole / 60 % 60, 2, 10, QChar('0')),
             QString("%1").arg(whole % 60, 2, 10, QChar('0')));
}

QString OverviewTexts::verdict(const CycleOverview& cycle)
{
    if (!cycle.problem.isEmpty())
        return tr("This cycle could not be read");
    switch (cycle.review.verdict) {
    case EVerdict::eOk: return tr("Nothing outside its limits while the engine ran");
    case EVerdict::eUnknown: return unknown(cycle);
    default: return troubles(cycle);
    }
}

QString OverviewTexts::unknown(const CycleOverview& cycle)
{
    if (cycle.review.sources == 0)
        return tr("Cannot tell: the profile declares no limits, lamps or faults");
    if (cycle.review.engine.isKnown() && cycle.review.engine.stretches().empty())
        return tr("The engine did not run");
    return tr("Cannot tell: nothing that is watched was recorded");
}

QString OverviewTexts::troubles(const CycleOverview& cycle)
{
    const std::vector<IncidentSentence> sentences = tellIncidents(cycle.review);
    if (sentences.size() == 1)
        return sentences.front().head;
    int stops = 0, limits = 0, faults = 0, warnings = 0;
    for (const IncidentSentence& sentence : sentences) {
        const Incident& incident = cycle.review.incidents[sentence.incidents.front()];
        const EEpisodeKind kind = incident.episodes[incident.leading].kind;
        int& count = kind == EEpisodeKind::eStop ? stops : incident.state < 2 ? warnings : kind == EEpisodeKind::eLimit ? limits : faults;
        ++count;
    }
    QStringList parts;
    if (stops > 0)
        parts.append(tr("engine stopped in flight"));
    if (limits > 0)
        parts.append(tr("%n limit(s) exceeded", nullptr, limits));
    if (faults > 0)
        parts.append(tr("%n fault(s)", nullptr, faults));
    if (warnings > 0)
        parts.append(tr("%n warning(s)", nullptr, warnings));
    QString text = parts.join(", ");
    text[0] = text[0].toUpper();
    return text;
}

QString OverviewTexts::origin(const CycleOverview& cycle)
{
    const QLocale locale;
    QString text = cycle.name.isEmpty() ? tr("Cycle %1").arg(cycle.number) : cycle.name;
    if (cycle.dateTime.isValid()) {
        const QDateTime end = cycle.dateTime.addMSecs(saturatingCast<qint64>(cycle.endTime * 1000.0));
        text += ", " + tr("%1 to %2").arg(cycle.dateTime.toString("dd.MM.yyyy hh:mm"), end.toString("hh:mm"));
    } else {
        text += ", " + tr("clock not set");
    }
    const int flights = static_cast<int>(cycle.flights.size());
    return text + ", " + (flights == 0 ? tr("on the ground") : tr("%n flight(s)", nullptr, flights));
}

std::vector<OverviewTexts::Figure> OverviewTexts::figures(const CycleOverview& cycle)
{
    const auto hours = [](double seconds) { // rounded to minutes
        const int minutes = saturatingCast<int>(std::round(seconds / 60.0));
        return QString("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QChar('0'));
    };
    const CycleReview& review = cycle.review;
    const bool isReviewed = cycle.problem.isEmpty();
    const std::optional<double> engine = isReviewed ? review.engine.duration() : std::nullopt;
    const bool flew = isReviewed && !cycle.flights.empty();
    return {{hours(cycle.endTime - cycle.startTime), tr("recorded [h]")},
            {engine ? hours(*engine) : kNone, tr("engine ran [h]")},
            {flew ? hours(review.flightTime) : kNone, tr("in flight [h]")},
            {isReviewed && review.fuel ? tr("%1 l").arg(QLocale().toString(*review.fuel, 'f', 1)) : kNone, tr("fuel")}};
}

QString OverviewTexts::basis(const CycleOverview& cycle)
{
    const CycleReview& review = cycle.review;
    if (!cycle.problem.isEmpty())
        return cycle.problem;
    QStringList parts;
    if (review.sources > 0)
        parts.append(tr("%1 of %2 watched parameters recorded").arg(review.withSamples).arg(review.sources));
    if (!review.standing.empty())
        parts.append(tr("starting, stopping, lane check, warming up: %n entry(s)", nullptr, static_cast<int>(review.standing.size())));
    if (!review.hasEngineSpeed)
        parts.append(tr("the profile names no engine speed: everything recorded counts as running"));
    else if (!review.engine.isKnown())
        parts.append(tr("no engine speed was recorded: everything recorded counts as running"));
    if (!cycle.flights.empty() && !review.knowsAltitude)
        parts.append(tr("no altitude: climb and descent cannot be told"));
    QString text = parts.join(". ");
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

QString OverviewTexts::missing(const CycleOverview& cycle)
{
    const std::vector<std::string>& names = cycle.review.missing;
    if (names.empty())
        return {};
    QStringList lines{tr("Not recorded while the engine ran:")};
    for (std::size_t i = 0; i < names.size() && i < kMissingShown; ++i)
        lines.append(QString::fromStdString(names[i]));
    if (names.size() > kMissingShown)
        lines.append(tr("and %n other(s)", nullptr, static_cast<int>(names.size()) - kMissingShown));
    return lines.join('\n');
}

QString OverviewTexts::plain(const CycleOverview& cycle)
{
    QStringList lines{origin(cycle), verdict(cycle)};
    QStringList figureTexts;
    for (const Figure& figure : figures(cycle))
        figureTexts.append(figure.name + " " + figure.value);
    lines.append(figureTexts.join(", "));
    if (cycle.problem.isEmpty()) {
        for (const IncidentSentence& sentence : tellIncidents(cycle.review))
            lines.append(clock(cycle.review.incidents[sentence.incidents.front()].start) + "  " + sentence.plain());
    }
    lines.append(basis(cycle));
    return lines.join('\n') + '\n';
}

} // namespace ZARN
