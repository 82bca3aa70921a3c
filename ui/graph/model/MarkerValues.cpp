#include "ui/graph/model/MarkerValues.h"

#include "ui/graph/model/GraphTexts.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kSecondsPerHour = 3600.0;

QString numberText(const std::optional<double>& value, int precision)
{
    return value ? graphNumber(*value, precision) : QStringLiteral("-");
}

QString header(const char* text)
{
    return QCoreApplication::translate("ZARN::MarkerValues", text);
}

/// A cell must not break the table.
QString cell(QString text)
{
    return text.replace(QLatin1Char('\t'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

MarkerValues MarkerValues::of(const GraphParameter& parameter, double start, double end)
{
    MarkerValues out;
    out.pParameter = &parameter;
    const SampleSeries& samples = parameter.samples;
    const auto valueAt = [&](double time) -> std::optional<double> {
        const std::optional<std::size_t> position = samples.lastAtOrBefore(time);
        return position ? std::optional(samples.value(*position)) : std::nullopt;
    };
    out.atStart = valueAt(start);
    out.atEnd = valueAt(end);
    if (out.atStart && out.atEnd)
        out.difference = *out.atEnd - *out.atStart;

    ValueRange<double> range;
    const std::size_t first = samples.firstAtOrAfter(start), last = samples.lastAtOrBefore(end).value_or(0);
    if (!samples.empty() && first <= last && samples.time(last) <= end)
        range = samples.range(first, last + 1);
    if (range.isEmpty() && out.atStart && out.atEnd) {
        range.add(*out.atStart);
        range.add(*out.atEnd);
    }
    if (range.isEmpty())
        return out;
    out.minimum = range.least;
    out.maximum = range.greatest;
    double covered = 0.0;
    const double area = samples.integral(start, end, &covered);
    if (covered > 0) {
        out.mean = area / covered;
        out.integral = area / kSecondsPerHour;
    } else {
        out.mean = out.atEnd;
    }
    return out;
}

QString MarkerValues::label() const
{
    return ghost.isEmpty() ? pParameter->label() : ghost + QStringLiteral(": ") + pParameter->label();
}

QStringList MarkerValues::texts() const
{
    const int precision = pParameter->precision;
    if (pParameter->pStates) { // nothing can be computed of them
        const auto name = [this](const std::optional<double>& value) { return value ? pParameter->text(*value) : QStringLiteral("-"); };
        return {name(atStart), name(atEnd), "-", name(minimum), name(maximum), "-", "-"};
    }
    QStringList out;
    for (const std::optional<double>& value : {atStart, atEnd, difference, minimum, maximum})
        out << numberText(value, precision);
    // What is computed has more digits than what was recorded.
    return out << numberText(mean, precision + 1) << numberText(integral, precision + 1);
}

QStringList MarkerValues::headers()
{
    return {header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "From")),       header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "To")),
            header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Difference")), header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Minimum")),
            header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Maximum")),    header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Mean")),
            header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Integral"))};
}

std::vector<MarkerValues> markerValues(const ShownTraces& traces, const GraphMarker& marker, const GraphScenery* pScenery)
{
    std::vector<MarkerValues> out;
    const auto [start, end] = marker.ordered();
    const Ghost* pGhost = pScenery ? pScenery->ghost().get() : nullptr;
    const double shift = pScenery ? pScenery->ghostShift() : 0.0;
    for (const int index : traces.shown()) {
        out.push_back(MarkerValues::of(*traces.at(index), start, end));
        out.back().index = index;
        if (!hasGhost(pGhost, index))
            continue;
        out.push_back(MarkerValues::of(*pGhost->traces.at(index), start - shift, end - shift));
        out.back().index = index;
        out.back().ghost = pGhost->name;
    }
    return out;
}

QString integralUnit(const QString& unit)
{
    if (unit.endsWith(QLatin1String("/h")))
        return unit.chopped(2);
    return unit.isEmpty() ? QStringLiteral("h") : unit + QStringLiteral("\u00b7h");
}

QString markerText(const ShownTraces& traces, const GraphMarker& marker, const TimeReference& times, const GraphScenery* pScenery)
{
    const auto [start, end] = marker.ordered();
    QString text = times.title() + QLatin1Char('\t') + graphTime(times.told(start)) + QLatin1Char('\t') + graphTime(times.told(end)) +
                   QLatin1Char('\n');
    text += QStringLiteral("dt\t%1 s\n").arg(end - start, 0, 'f', 3);
    const QStringList columns = MarkerValues::headers();
    text += header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Parameter")) + QLatin1Char('\t') +
            header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Unit")) + QLatin1Char('\t') + columns.join(QLatin1Char('\t')) +
            QLatin1Char('\t') + header(QT_TRANSLATE_NOOP("ZARN::MarkerValues", "Unit of integral")) + QLatin1Char('\n');
    for (const MarkerValues& line : markerValues(traces, marker, pScenery)) {
        const QString unit = cell(line.pParameter->unit);
        text += cell(line.ghost.isEmpty() ? line.pParameter->name : line.ghost + ": " + line.pParameter->name) + QLatin1Char('\t') + unit + QLatin1Char('\t') + line.texts().join(QLatin1Char('\t')) +
                QLatin1Char('\t') + cell(integralUnit(line.pParameter->unit)) + QLatin1Char('\n');
    }
    return text;
}

} // namespace ZARN
