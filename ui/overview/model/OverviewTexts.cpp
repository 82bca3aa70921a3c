#include "ui/overview/model/OverviewTexts.h"

#include "analysis/ReviewText.h"
#include "app/DateText.h"
#include "app/Numeric.h"
#include "app/TimeText.h"

#include <QLocale>
#include <QRegularExpression>

#include <utility>

namespace ZARN {

namespace {

const QString kNone = QStringLiteral("-");

} // namespace

QString OverviewTexts::verdict(const CycleOverview& cycle)
{
    if (!cycle.problem.isEmpty())
        return tr("This cycle could not be read");
    if (cycle.verdict() == EVerdict::eOk)
        return tr("Nothing outside its limits while the engine ran");
    if (cycle.verdict() == EVerdict::eUnknown)
        return tr("Cannot tell whether the engine was all right");
    return troubles(cycle);
}

QString OverviewTexts::troubles(const CycleOverview& cycle)
{
    int stops = 0, limits = 0, faults = 0, warnings = 0;
    for (const IncidentSentence& sentence : sentences(cycle)) {
        const Incident& incident = cycle.review.incidents[sentence.incidents.front()];
        const EEpisodeKind kind = incident.episodes[incident.leading].kind;
        int& count = kind == EEpisodeKind::eStop ? stops : incident.state < 2 ? warnings : kind == EEpisodeKind::eLimit ? limits : faults;
        ++count;
    }
    QStringList parts;
    if (stops > 0)
        parts.append(tr("engine stopped in flight"));
    if (limits > 0)
        parts.append(limits == 1 ? tr("1 limit exceeded") : tr("%1 limits exceeded").arg(limits));
    if (faults > 0)
        parts.append(faults == 1 ? tr("1 fault") : tr("%1 faults").arg(faults));
    if (warnings > 0)
        parts.append(warnings == 1 ? tr("1 warning") : tr("%1 warnings").arg(warnings));
    QString text = parts.join(", ");
    text[0] = text[0].toUpper();
    return text;
}

QString OverviewTexts::origin(const CycleOverview& cycle)
{
    QString text = tr("Cycle %1").arg(cycle.number);
    if (cycle.dateTime.isValid()) {
        const QDateTime end = cycle.dateTime.addMSecs(saturatingCast<qint64>(cycle.endTime * 1000.0));
        const QString last = dateTimeText(end);
        text += ", " + tr("%1 to %2").arg(dateTimeText(cycle.dateTime), end.date() == cycle.dateTime.date() ? last.right(5) : last);
    } else {
        text += ", " + tr("clock not set");
    }
    const int flights = static_cast<int>(cycle.flights.size());
    return text + ", " + (flights == 0 ? tr("no flight found") : flights == 1 ? tr("1 flight") : tr("%1 flights").arg(flights));
}

std::vector<OverviewTexts::Figure> OverviewTexts::figures(const CycleOverview& cycle)
{
    const CycleReview& review = cycle.review;
    const bool isReviewed = cycle.problem.isEmpty();
    const std::optional<double> engine = isReviewed && review.engine.hasNumbers() ? review.engine.duration() : std::nullopt;
    const bool flew = isReviewed && !cycle.flights.empty();
    return {{hoursText(cycle.endTime - cycle.startTime), tr("recorded [h]")},
            {engine ? hoursText(*engine) : kNone, tr("engine ran [h]")},
            {flew ? hoursText(review.flightTime) : kNone, tr("in flight [h]")},
            {isReviewed && review.fuel.value_or(-1) >= 0 ? tr("%1 l").arg(QLocale().toString(*review.fuel, 'f', 1)) : kNone, tr("fuel")}};
}

std::vector<IncidentSentence> OverviewTexts::sentences(const CycleOverview& cycle)
{
    return IncidentText(QLocale(), [&cycle](double seconds) { return cycle.times.shortText(seconds); }).sentences(cycle.review.incidents);
}

QString OverviewTexts::detail(const IncidentSentence& sentence)
{
    QStringList parts;
    if (!sentence.when.isEmpty())
        parts.append(sentence.when);
    if (!sentence.with.isEmpty())
        parts.append(tr("with %1").arg(sentence.with));
    return parts.join(", ");
}

QStringList OverviewTexts::remarks(const CycleOverview& cycle)
{
    QStringList lines;
    for (const QString& unusual : cycle.unusual)
        lines.append(tr("Unusual for this engine: %1").arg(unusual));
    for (const CycleNote& note : cycle.notes)
        lines.append(tr("Note at %1: %2").arg(cycle.times.shortText(note.time), note.text));
    return lines;
}

QString OverviewTexts::basis(const CycleOverview& cycle)
{
    if (!cycle.problem.isEmpty())
        return cycle.problem;
    const ReviewText text(cycle.review, [&cycle](double seconds) { return cycle.times.shortText(seconds); });
    QStringList lines = cycle.damages;
    lines.append(text.gaps());
    if (cycle.review.sources > 0)
        lines.append(text.watched() + ".");
    if (const QString standing = text.standing(); !standing.isEmpty())
        lines.append(tr("Not counted: %1.").arg(standing));
    return lines.join(' ');
}

QString OverviewTexts::breakable(const QString& text)
{
    constexpr int longest = 24; // characters
    constexpr QChar zeroWidthSpace(0x200b);
    static const QRegularExpression beforeUnit(R"((?<=\d) (?=[\p{L}°%][^\s,;]{0,4}(?:[\s,;.]|$))|(?<=\d min) (?=\d)|(?<=\d h) (?=\d))");
    QString kept = text;
    kept.replace(beforeUnit, QString(QChar::Nbsp));
    QString out;
    int length = 0;
    for (const QChar character : std::as_const(kept)) {
        if (length >= longest && !character.isLowSurrogate() && !character.isMark()) {
            out += zeroWidthSpace;
            length = 0;
        }
        length = character.isSpace() ? 0 : length + 1;
        out += character;
    }
    return out;
}

QString OverviewTexts::plain(const CycleOverview& cycle)
{
    QStringList lines{origin(cycle), verdict(cycle)};
    QStringList figureTexts;
    for (const Figure& figure : figures(cycle))
        figureTexts.append(figure.name + " " + figure.value);
    lines.append(figureTexts.join(", "));
    if (cycle.problem.isEmpty()) {
        for (const IncidentSentence& sentence : sentences(cycle))
            lines.append(sentence.time + "  " + sentence.text());
        lines.append(remarks(cycle));
    }
    lines.append(basis(cycle));
    return lines.join('\n') + '\n';
}

} // namespace ZARN
