#include "ui/data/DialogDataStatistic.h"

#include "card/CardContainer.h"
#include "card/FlightFigures.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTextEdit>
#include <QVBoxLayout>

#include <memory>

namespace ZARN {

namespace {

struct Row {
    EFlightFigure figure;
    const char* label;
};
constexpr Row kRows[] = {{eFigureFlightTime, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Flight Time")},
                         {eFigureFuelA, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Total Fuel Lane A")},
                         {eFigureFuelB, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Total Fuel Lane B")},
                         {eFigureTotalFuel, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Total Fuel")},
                         {eFigureMinAltitude, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Minimum Alt")},
                         {eFigureMaxAltitude, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Maximum Alt")},
                         {eFigureTotalClimb, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Total Climb")},
                         {eFigureClimbRate, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Average Climb Rate")},
                         {eFigureDescendRate, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Average Descend Rate")},
                         {eFigureGroundSpeed, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Max Ground Speed")},
                         {eFigureTimePer100m, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Time / 100m")},
                         {eFigureFuelPer100m, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Fuel / 100m")},
                         {eFigureTakeOff, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Take Off Distance")},
                         {eFigureTakeOff15m, QT_TRANSLATE_NOOP("ZARN::DialogDataStatistic", "Take Off Distance 15m")}};

} // namespace

DialogDataStatistic::DialogDataStatistic(const Session& session, QWidget* pParent)
    : QWidget(pParent), mSession(session), mpEdit(new QTextEdit)
{
    mpEdit->setReadOnly(true);
    mpEdit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    mpEdit->setCursorWidth(0); // nothing can be written there
    mpEdit->setContextMenuPolicy(Qt::CustomContextMenu);
    mpEdit->setProperty("copiesUnselected", true); // or the window would take the copy key first
    mpEdit->installEventFilter(this);
    connect(mpEdit, &QTextEdit::customContextMenuRequested, this, &DialogDataStatistic::showMenu);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpEdit);
    setFocusProxy(mpEdit);
    updateRecord(nullptr);
}

void DialogDataStatistic::updateRecord(RecordData* pRecord)
{
    mpRecord = pRecord;
    mPlainText.clear();
    const RecordFlight& flight = mSession.container.selectedFlight();
    if (!pRecord || !flight.valid) {
        mText =
            tr("<br><br><b>No flight selected</b>") + "<br>" + tr("A click on a flight in the list on the left shows its figures here.");
    } else {
        mText = "<table>";
        addFlight(flight);
        mText += "</table>";
    }
    mpEdit->setHtml(mText);
}

void DialogDataStatistic::showMenu(const QPoint& point)
{
    const std::unique_ptr<QMenu> menu(mpEdit->createStandardContextMenu(point));
    menu->addSeparator();
    menu->addAction(tr("Flight Report..."), this, &DialogDataStatistic::signalReport)->setEnabled(mpRecord != nullptr);
    menu->exec(mpEdit->viewport()->mapToGlobal(point));
}

void DialogDataStatistic::addLine(const QString& label, const QString& value)
{
    mText += QString("<tr><td>%1  :  </td><td><b>%2</b></td></tr>").arg(label, value);
    mPlainText += label + "\t" + value + "\n";
}

void DialogDataStatistic::addFlight(const RecordFlight& flight)
{
    for (const Row& row : kRows)
        addLine(tr(row.label), flightFigureText(flight, row.figure));
}

/// The copy key copies what is selected in the text, else all of it. Without a flight there is nothing, and the key is the window's.
bool DialogDataStatistic::eventFilter(QObject* pObject, QEvent* pEvent)
{
    const bool isKey = pEvent->type() == QEvent::ShortcutOverride || pEvent->type() == QEvent::KeyPress;
    if (pObject != mpEdit || !isKey || !static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Copy) || mpEdit->textCursor().hasSelection())
        return QWidget::eventFilter(pObject, pEvent);
    pEvent->setAccepted(!mPlainText.isEmpty());
    if (pEvent->type() == QEvent::KeyPress && !mPlainText.isEmpty())
        QGuiApplication::clipboard()->setText(mPlainText);
    return true;
}

} // namespace ZARN
