#include "ui/graph/DialogGraphSetup.h"

#include "app/gui/StyleProperty.h"
#include "ui/graph/TraceColourRow.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>
#include <QShowEvent>
#include <QSignalBlocker>

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace ZARN {

namespace {


/// The number that a text says, with a point or a comma; none when it says no number that the graph can take. What one reader takes for
/// thousands and another one for decimals is none, but for the sign that the language in force has for decimals.
std::optional<double> numberOf(const QString& text)
{
    static const QRegularExpression thousands(QRegularExpression::anchoredPattern("[+-]?[1-9][0-9]{0,2}([.,])[0-9]{3}"));
    const QRegularExpressionMatch match = thousands.match(text.trimmed());
    if (match.hasMatch() && match.captured(1) != QLocale().decimalPoint())
        return std::nullopt;
    bool isNumber = false;
    const double value = text.trimmed().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    return isNumber && std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max()) ? std::optional(value) : std::nullopt;
}

QString fieldText(double value)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'g', 10);
}

} // namespace

DialogGraphSetup::DialogGraphSetup(QWidget* pParent, GraphData& graphData) : QDialog(pParent), mData(graphData)
{
    setWindowTitle(tr("Oscilloscope Setup"));
    createControls();
    auto* pForm = new QFormLayout(this);
    addRow(pForm, tr("Palette :"), {mpPalette});
    addRow(pForm, tr("Background Color :"), {mpBackground});
    addRow(pForm, tr("Grid On/Color :"), {mpGrid, mpGridColour});
    addRow(pForm, tr("Label Color :"), {mpLabel});
    addRow(pForm, tr("Label Background :"), {mpLabelBackground});
    addRow(pForm, tr("Cursor On/Mode :"), {mpCursor, mpCursorMode});
    addRow(pForm, tr("Click :"), {mpClickMovesCursor});
    addRow(pForm, tr("Legend :"), {mpLegend});
    addRow(pForm, tr("Gaps :"), {mpGaps});
    addRow(pForm, tr("Trace Color :"), {mpTraces});
    addRow(pForm, tr("Y-Scale :"), {mpAutoscale, mpYmin, mpYmax});
    addRow(pForm, QString(), {mpSharedScale});
    addRow(pForm, QString(), {mpClose});
    updateDialog();
    connectControls();
}

void DialogGraphSetup::createControls()
{
    mpPalette = new QComboBox;
    mpPalette->setObjectName("palette");
    mpPalette->addItems({tr("Standard"), tr("Dark"), tr("Light"), tr("Print")});
    mpPalette->setAccessibleName(tr("Colors of the graph"));
    mpGaps = new QCheckBox(tr("Interrupt the traces"));
    mpGaps->setObjectName("gapsOn");
    mpGaps->setToolTip(tr("Where nothing was recorded for five times the usual time, at least 2 s, or no number."));
    mpBackground = colourButton("background", tr("Background color"));
    mpGrid = new QCheckBox(tr("Grid On"));
    mpGrid->setObjectName("gridOn");
    mpGridColour = colourButton("grid", tr("Grid color"));
    mpLabel = colourButton("label", tr("Label color"));
    mpLabelBackground = colourButton("labelBackground", tr("Label background color"));
    mpCursor = new QCheckBox(tr("Cursor On"));
    mpCursor->setObjectName("cursorOn");
    mpCursorMode = new QComboBox;
    mpCursorMode->setObjectName("cursorMode");
    mpCursorMode->addItems({tr("Floating"), tr("Center")});
    mpCursorMode->setAccessibleName(tr("Cursor mode"));
    mpClickMovesCursor = new QCheckBox(tr("Moves the cursor"));
    mpClickMovesCursor->setObjectName("clickMovesCursor");
    mpClickMovesCursor->setToolTip(tr("Otherwise a click makes the marker a point. Dragging marks either way."));
    mpTraces = new TraceColourRow;
    mpLegend = new QCheckBox(tr("Legend On"));
    mpLegend->setObjectName("legendOn");
    mpAutoscale = new QCheckBox(tr("Autoscale On"));
    mpAutoscale->setObjectName("autoscaleOn");
    mpSharedScale = new QCheckBox(tr("One scale for each unit"));
    mpSharedScale->setObjectName("sharedScale");
    mpSharedScale->setToolTip(tr("Traces of one unit can be compared by their heights. Otherwise each trace has a scale of its own."));
    mpYmin = new QLineEdit;
    mpYmin->setObjectName("yMin");
    mpYmin->setAccessibleName(tr("Least value of the scale"));
    mpYmax = new QLineEdit;
    mpYmax->setObjectName("yMax");
    mpYmax->setAccessibleName(tr("Greatest value of the scale"));
    mpClose = new QPushButton(tr("Close"));
    mpClose->setObjectName("close");
}

void DialogGraphSetup::connectControls()
{
    connect(mpPalette, &QComboBox::activated, this, &DialogGraphSetup::slotPalette);
    connect(mpGaps, &QCheckBox::stateChanged, this, &DialogGraphSetup::slotGapsOn);
    connect(mpBackground, &QPushButton::clicked, this, &DialogGraphSetup::slotBackgroundColor);
    connect(mpGrid, &QCheckBox::stateChanged, this, &DialogGraphSetup::slotGridOn);
    connect(mpGridColour, &QPushButton::clicked, this, &DialogGraphSetup::slotGridColor);
    connect(mpLabel, &QPushButton::clicked, this, &DialogGraphSetup::slotLabelColor);
    connect(mpLabelBackground, &QPushButton::clicked, this, &DialogGraphSetup::slotLabelBackColor);
    connect(mpCursor, &QCheckBox::stateChanged, this, &DialogGraphSetup::slotCursorOn);
    connect(mpCursorMode, &QComboBox::activated, this, &DialogGraphSetup::slotCursorMode);
    connect(mpClickMovesCursor, &QCheckBox::stateChanged, this, &DialogGraphSetup::slotClickMovesCursor);
    connect(mpTraces, &TraceColourRow::signalSelect, this, &DialogGraphSetup::slotTraceColor);
    connect(mpTraces, &TraceColourRow::signalDefault, this, &DialogGraphSetup::slotTraceDefault);
    connect(mpLegend, &QCheckBox::stateChanged, this, &DialogGraphSetup::slotLegendOn);
    connect(mpAutoscale, &QCheckBox::stateChanged, this, &DialogGraphSetup::slotAutoscaleOn);
    connect(mpSharedScale, &QCheckBox::stateChanged, this, &DialogGraphSetup::slotSharedScale);
    connect(mpYmin, &QLineEdit::textEdited, this, &DialogGraphSetup::slotYmin);
    connect(mpYmax, &QLineEdit::textEdited, this, &DialogGraphSetup::slotYmax);
    connect(mpYmin, &QLineEdit::editingFinished, this, [this] { mBefore[mpYmin] = mData.scale.lower; });
    connect(mpYmax, &QLineEdit::editingFinished, this, [this] { mBefore[mpYmax] = mData.scale.upper; });
    connect(mpClose, &QPushButton::clicked, this, &DialogGraphSetup::slotClose);
}

void DialogGraphSetup::addRow(QFormLayout* pForm, const QString& label, const QList<QWidget*>& controls)
{
    auto* pRow = new QHBoxLayout;
    for (QWidget* pControl : controls)
        pRow->addWidget(pControl);
    pRow->addStretch();
    pForm->addRow(label, pRow);
}

QPushButton* DialogGraphSetup::colourButton(const QString& name, const QString& accessible)
{
    auto* pButton = new QPushButton(tr("Select"));
    pButton->setObjectName(name);
    pButton->setAccessibleName(accessible);
    pButton->setAutoDefault(false);
    return pButton;
}

void DialogGraphSetup::updateDialog()
{
    const QSignalBlocker blockers[] = {QSignalBlocker(mpGrid),   QSignalBlocker(mpCursor),    QSignalBlocker(mpCursorMode),
                                       QSignalBlocker(mpLegend), QSignalBlocker(mpAutoscale), QSignalBlocker(mpClickMovesCursor),
                                       QSignalBlocker(mpGaps),   QSignalBlocker(mpSharedScale)};
    mpPalette->setCurrentIndex(static_cast<int>(mData.palette));
    mpGaps->setChecked(mData.gapsOn);
    mpGrid->setChecked(mData.gridOn);
    mpCursor->setChecked(mData.cursorOn);
    mpCursorMode->setCurrentIndex(mData.cursorMode);
    mpClickMovesCursor->setChecked(mData.clickMovesCursor);
    mpLegend->setChecked(mData.legendOn);
    mpAutoscale->setChecked(mData.scale.isAutomatic);
    mpSharedScale->setChecked(mData.scale.isShared);
    showNumber(mpYmin, mData.scale.lower);
    showNumber(mpYmax, mData.scale.upper);
    // With autoscaling the two say nothing.
    mpYmin->setEnabled(!mData.scale.isAutomatic);
    mpYmax->setEnabled(!mData.scale.isAutomatic);
    showColour(mpBackground, mData.backColor);
    showColour(mpGridColour, mData.gridColor);
    showColour(mpLabel, mData.labelColor);
    showColour(mpLabelBackground, mData.labelBackColor);
}

void DialogGraphSetup::showTraces(std::vector<TraceColour> traces)
{
    mTraces = std::move(traces);
    mpTraces->setTraces(mTraces);
}

void DialogGraphSetup::showColour(QPushButton* pButton, const QString& name)
{
    QPixmap swatch(16, 16);
    swatch.fill(QColor(name));
    pButton->setIcon(swatch);
}

void DialogGraphSetup::showNumber(QLineEdit* pField, double value)
{
    // What the user is typing stays as he types it, and is marked for as long as it is no number.
    const std::optional<double> typed = numberOf(pField->text());
    const bool isTyped = pField->isModified() && !mData.scale.isAutomatic && typed.value_or(value) == value;
    if (!isTyped) {
        pField->setText(fieldText(value));
        mBefore[pField] = value;
    }
    const bool isWrong = isTyped && !typed;
    setStyleProperty(*pField, "wrong", isWrong);
    pField->setToolTip(
        isWrong ? tr("This is not a number, or might be read as two: the scale stays as it was. Numbers have no sign between thousands.")
                : QString());
}

void DialogGraphSetup::showEvent(QShowEvent* pEvent)
{
    // What was left half typed the last time is over.
    for (QLineEdit* pField : {mpYmin, mpYmax})
        pField->setModified(pField->isModified() && pEvent->spontaneous());
    updateDialog();
    QDialog::showEvent(pEvent);
}

template <typename Value> void DialogGraphSetup::setScale(Value ValueScale::*pMember, const Value& value)
{
    Q_EMIT signalChanging();
    if (mData.scale.*pMember != value)
        mData.scale.zoomed.clear(); // what was zoomed to would hide the edit
    mData.scale.*pMember = value;
    changed();
}

void DialogGraphSetup::changed()
{
    Q_EMIT signalChanged();
    updateDialog();
}

QColor DialogGraphSetup::askColour(const QColor& present)
{
    return QColorDialog::getColor(present, this);
}

void DialogGraphSetup::chooseColour(QString& name)
{
    const QColor colour = askColour(QColor(name));
    if (colour.isValid())
        name = colour.name();
    changed();
}

void DialogGraphSetup::slotBackgroundColor()
{
    chooseColour(mData.backColor);
}

void DialogGraphSetup::slotGridColor()
{
    chooseColour(mData.gridColor);
}

void DialogGraphSetup::slotLabelColor()
{
    chooseColour(mData.labelColor);
}

void DialogGraphSetup::slotLabelBackColor()
{
    chooseColour(mData.labelBackColor);
}

void DialogGraphSetup::slotGridOn(int state)
{
    mData.gridOn = state != Qt::Unchecked;
    changed();
}

void DialogGraphSetup::slotCursorOn(int state)
{
    mData.cursorOn = state != Qt::Unchecked;
    changed();
}

void DialogGraphSetup::slotCursorMode(int mode)
{
    mData.cursorMode = mode == eCenter ? eCenter : eFloating;
    changed();
}

void DialogGraphSetup::slotLegendOn(int state)
{
    mData.legendOn = state != Qt::Unchecked;
    changed();
}

void DialogGraphSetup::slotAutoscaleOn(int state)
{
    setScale(&ValueScale::isAutomatic, state != Qt::Unchecked);
}

void DialogGraphSetup::slotSharedScale(int state)
{
    setScale(&ValueScale::isShared, state != Qt::Unchecked);
}

double DialogGraphSetup::typed(const QLineEdit* pField)
{
    return numberOf(pField->text()).value_or(mBefore[pField]);
}

void DialogGraphSetup::slotYmin(const QString& /*text*/)
{
    setScale(&ValueScale::lower, typed(mpYmin));
}

void DialogGraphSetup::slotYmax(const QString& /*text*/)
{
    setScale(&ValueScale::upper, typed(mpYmax));
}

void DialogGraphSetup::slotClickMovesCursor(int state)
{
    mData.clickMovesCursor = state != Qt::Unchecked;
    changed();
}

void DialogGraphSetup::slotPalette(int palette)
{
    mData.usePalette(static_cast<EGraphPalette>(palette));
    changed();
}

void DialogGraphSetup::slotGapsOn(int state)
{
    mData.gapsOn = state != Qt::Unchecked;
    changed();
}

void DialogGraphSetup::slotTraceColor()
{
    const TraceColour trace = mTraces[static_cast<std::size_t>(mpTraces->current())];
    if (const QColor colour = askColour(trace.colour); colour.isValid()) {
        Q_EMIT signalChanging();
        Q_EMIT signalTraceColour(trace.slot, colour);
    }
    changed();
}

void DialogGraphSetup::slotTraceDefault()
{
    Q_EMIT signalChanging();
    Q_EMIT signalTraceColour(mTraces[static_cast<std::size_t>(mpTraces->current())].slot, QColor());
    changed();
}

void DialogGraphSetup::slotClose()
{
    close();
}

} // namespace ZARN
