#include "ui/graph/model/GraphDescription.h"

#include "ui/graph/model/MarkerValues.h"

namespace ZARN {

QString GraphDescription::text() const
{
    if (!mModel.scenery().message().isEmpty())
        return mModel.scenery().message();
    if (mModel.traces().count() == 0)
        return tr("Nothing is shown.");
    QStringList sentences{tr("From %1 to %2.").arg(time(mModel.window().begin()), time(mModel.window().end())),
                          tr("Cursor at %1.").arg(time(mModel.cursor().time)), traces()};
    const GraphMarker marker = mModel.marker().ordered();
    if (marker.isRange())
        sentences << tr("Marked from %1 to %2.").arg(time(marker.start), time(marker.end));
    sentences << incidents();
    sentences.removeAll(QString());
    return sentences.join(' ');
}

QString GraphDescription::time(double seconds) const
{
    return graphTime(mModel.settings().times.told(seconds), 0, 2);
}

/// "EGT 1 712 °C, here 640 to 745;" one after the other, from top to bottom.
QString GraphDescription::traces() const
{
    QStringList texts;
    for (const int index : mModel.traces().shown()) {
        const GraphParameter& trace = *mModel.traces().at(index);
        const std::optional<double> value = mModel.traces().valueAt(index, mModel.cursor().time);
        QString text = trace.name + ' ' + (value ? trace.text(*value) : tr("without a value"));
        if (!trace.pStates && !trace.unit.isEmpty() && value)
            text += ' ' + trace.unit;
        const MarkerValues shown = MarkerValues::of(trace, mModel.window().begin(), mModel.window().end());
        if (!trace.pStates && shown.minimum && shown.maximum)
            text = tr("%1, here %2 to %3").arg(text, trace.text(*shown.minimum), trace.text(*shown.maximum));
        texts << text;
    }
    return texts.join("; ") + '.';
}

QString GraphDescription::incidents() const
{
    QStringList titles;
    if (const auto& pCourse = mModel.scenery().course()) {
        for (const CycleCourse::Mark& mark : pCourse->incidents) {
            if (mark.span.start <= mModel.window().end() && mark.span.end >= mModel.window().begin())
                titles << tr("%1 at %2").arg(mark.title, time(mark.span.start));
        }
    }
    return titles.isEmpty() ? QString() : tr("Incidents: %1.").arg(titles.join("; "));
}

} // namespace ZARN
