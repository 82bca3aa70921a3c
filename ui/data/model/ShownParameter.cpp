#include "ui/data/model/ShownParameter.h"

namespace ZARN {

namespace {

constexpr std::size_t kMaxThresholdLines = 20; // a profile may list any number

QString escaped(const std::string& text)
{
    return QString::fromStdString(text).toHtmlEscaped();
}

} // namespace

std::vector<ShownParameter> ShownParameter::all(const DecodingContext& context, const Selection& selection)
{
    std::vector<ShownParameter> shown;
    for (const auto& [device, parameter] : context.model().parameters()) {
        if (selection.contains(parameter.name))
            shown.emplace_back(context, parameter);
    }
    return shown;
}

QString ShownParameter::label() const
{
    const QString name = QString::fromStdString(mParameter.name);
    return unit().empty() ? name : name + " [" + QString::fromStdString(unit()) + "]";
}

QString ShownParameter::stateName(int state)
{
    return state == eThresholdWarning ? tr("Warning") : state == eThresholdLimit ? tr("Limit") : QString();
}

QString ShownParameter::toolTip() const
{
    QString text = "<qt><b>" + escaped(mParameter.path) + "</b><br/>";
    if (isRecorded())
        text += tr("CAN identifier: %1").arg(mParameter.identifier());
    else
        text += tr("Computed: %1").arg(escaped(mParameter.expression));
    if (!unit().empty())
        text += "<br/>" + tr("Unit:") + " " + escaped(unit());
    return text + thresholdLines() + "</qt>";
}

QString ShownParameter::thresholdLines() const
{
    const ThresholdList* pList = mDecoder.textThresholds();
    if (!pList || pList->empty())
        return {};
    QString lines = "<br/>" + tr("Thresholds:");
    for (std::size_t i = 0; i < pList->size(); ++i) {
        if (i == kMaxThresholdLines)
            return lines + "<br/>&nbsp;&nbsp;" + tr("and %n more", nullptr, static_cast<int>(pList->size() - i));
        const Threshold& threshold = (*pList)[i];
        std::string value;
        mDecoder.appendText(threshold.value, value);
        const QString state = stateName(threshold.state);
        lines += "<br/>&nbsp;&nbsp;" + tr("from") + " " + escaped(value) + " " + escaped(unit()) + ": ";
        lines += state.isEmpty() ? tr("Normal") : state;
    }
    return lines;
}

} // namespace ZARN
