#include "ui/data/model/CellModel.h"

#include "app/NumberText.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/data/model/ShownParameter.h"

namespace ZARN {

namespace {

/// A value below every boundary leaves a neutral white, which is no colour to show.
bool isNeutral(const ThresholdResult& result)
{
    return result.state == eThresholdOk && result.colour == QColor(255, 255, 255);
}

} // namespace

TableCell TableCell::ofValue(const ValueDecoder& decoder, double textValue)
{
    TableCell cell;
    char number[kNumberTextSize];
    if (const char* pEnd = decoder.writeNumber(textValue, number)) {
        cell.text = QString::fromLatin1(number, pEnd - number);
    } else {
        std::string text;
        decoder.appendText(textValue, text);
        cell.text = QString::fromStdString(text);
        cell.isNumber = false;
    }
    const ThresholdResult result = decoder.textThreshold(textValue);
    if (!isNeutral(result))
        cell.background = result.colour;
    cell.state = result.state;
    return cell;
}

QVariant CellModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole: return cell(index).text;
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignVCenter | (cell(index).isNumber ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::BackgroundRole:
    case Qt::ForegroundRole: {
        const QColor background = cell(index).background;
        if (!background.isValid())
            return {};
        return role == Qt::BackgroundRole ? background : textColourOn(background);
    }
    case Qt::ToolTipRole: {
        const QString state = ShownParameter::stateName(cell(index).state);
        return state.isEmpty() ? QVariant() : state;
    }
    default: return {};
    }
}

} // namespace ZARN
