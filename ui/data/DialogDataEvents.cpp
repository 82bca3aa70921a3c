#include "ui/data/DialogDataEvents.h"

#include "app/TimeText.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/TimeReference.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/Palette.h"
#include "ui/data/EventMark.h"
#include "ui/data/GraphJump.h"
#include "ui/data/TableCopy.h"
#include "ui/data/TimeFollower.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <utility>

namespace ZARN {

namespace {

constexpr int kTimeWidth = 110;
constexpr int kTimeMargin = 14;
constexpr int kRowHeight = 22;
constexpr float kDimmed = 0.75F;
constexpr double kLeastContrast = 4.5;

/// Whole milliseconds as a cell keeps them.
QVariant timeData(double seconds)
{
    const int64_t milliseconds = wholeMilliseconds(seconds);
    if (milliseconds > std::numeric_limits<int>::max())
        return QVariant::fromValue<qlonglong>(milliseconds); // 25 days and more are damage, but still a time
    return static_cast<int>(milliseconds);
}

/// A colour that is still told apart, but steps back.
QColor dimmed(const QColor& colour)
{
    return mixed(colour, Palette::screen().tables.field, kDimmed);
}

/// Of what is outside the selected flight. @param ground of the cell; an invalid one is the table's
QColor dimText(const QColor& ground)
{
    const Palette::Table& colours = Palette::screen().tables;
    return readableOn(ground.isValid() ? dimmed(ground) : colours.field, colours.dimText, kLeastContrast);
}

QTableWidgetItem* createItem(const QString& text)
{
    auto* pItem = new QTableWidgetItem(text);
    pItem->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return pItem;
}

/// What an event says without the group, in the cell that says all of it.
constexpr int kShortText = Qt::UserRole + 1;

class EventDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(pOption, index);
        if (pOption->state.testFlag(QStyle::State_Selected)) { // one ground for the whole row, whether a cell has a colour of its own or none
            pOption->state.setFlag(QStyle::State_Selected, false);
            pOption->backgroundBrush = pOption->palette.brush(QPalette::Normal, QPalette::Highlight);
            pOption->palette.setBrush(QPalette::Text, pOption->palette.brush(QPalette::Normal, QPalette::HighlightedText));
        }
        const QWidget* pWidget = pOption->widget;
        const QStyle& style = *pWidget->style();
        const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, pOption, pWidget) + 1;
        const int room = style.subElementRect(QStyle::SE_ItemViewItemText, pOption, pWidget).width() - 2 * margin;
        const QString shortText = index.data(kShortText).toString();
        if (!shortText.isEmpty() && pOption->fontMetrics.horizontalAdvance(pOption->text) > room)
            pOption->text = shortText;
    }
};

} // namespace

DialogDataEvents::DialogDataEvents(const Session& session, const Kind& kind, QWidget* pParent)
    : QWidget(pParent), mSession(session), mKind(kind), mpTable(new QTableWidget), mpHint(new QLabel), mpNotes(new QLabel)
{
    createTable();
    updateFonts();
    connect(&mTask, &BackgroundTask::signalFinished, this, &DialogDataEvents::slotFound);
    mpHint->setObjectName("quiet");
    mpHint->setAlignment(Qt::AlignCenter);
    mpHint->setWordWrap(true);
    mpHint->setMargin(6);
    mpHint->hide();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpTable);
    pLayout->addWidget(mpHint);
    pLayout->addWidget(mpNotes);
    mpNotes->setTextFormat(Qt::RichText);
    mpNotes->setWordWrap(true);
    mpNotes->setMargin(6);
    mpNotes->hide();
    connect(mpNotes, &QLabel::linkActivated, this, [this](const QString& time) { Q_EMIT signalTime(time.toDouble()); });
}

void DialogDataEvents::setNotes(const std::vector<CycleNote>& notes)
{
    mNotes = notes;
    showNotes();
}

void DialogDataEvents::showNotes()
{
    const TimeReference times = TimeReference::of(mSession.property, mSession.container);
    QStringList lines;
    for (const CycleNote& note : mNotes) {
        lines.append(QStringLiteral("<a href=\"%1\">%2</a> %3")
                         .arg(QString::number(note.time, 'g', 17), times.textAt(note.time), note.text.toHtmlEscaped()));
    }
    mpNotes->setText(tr("Notes:") + "<br>" + lines.join("<br>"));
    mpNotes->setVisible(!mNotes.empty());
}

void DialogDataEvents::createTable()
{
    mpTable->setColumnCount(2);
    mpTable->setHorizontalHeaderLabels({tr("Time"), mKind.title});
    mpTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mpTable->setTabKeyNavigation(false);
    mpTable->setWordWrap(false);
    mpTable->setTextElideMode(Qt::ElideMiddle); // the name begins there, and the value ends it
    mpTable->setItemDelegate(new EventDelegate(mpTable));
    mpTable->verticalHeader()->hide();
    QHeaderView* pHeader = mpTable->horizontalHeader();
    QFont font = pHeader->font();
    font.setWeight(QFont::Bold);
    pHeader->setFont(font);
    pHeader->setHighlightSections(false);
    pHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pHeader->setStretchLastSection(true);
    new TableCopy(mpTable);
    new GraphJump(mpTable, [this](const QModelIndex& index) {
        const Event& event = mEvents.events()[static_cast<std::size_t>(index.row())];
        Q_EMIT signalMoment(GraphMoment::around(event.time, {mEvents.source(event).parameter}));
    });
    mpTable->installEventFilter(this);
    mpFollower = new TimeFollower(mpTable, [this](int row) { return static_cast<double>(mpTable->item(row, 0)->data(Qt::UserRole).toLongLong()) * 0.001; });
    connect(mpFollower, &TimeFollower::signalTime, this, &DialogDataEvents::signalTime);
    setFocusProxy(mpTable);
}

void DialogDataEvents::updateFonts()
{
    const QFontMetrics metrics(font());
    const int height = std::max(kRowHeight, metrics.height() + 6);
    mpTable->verticalHeader()->setMinimumSectionSize(height);
    mpTable->verticalHeader()->setDefaultSectionSize(height);
    mpTable->setIconSize(QSize(metrics.height(), metrics.height()));
    mpTable->setColumnWidth(0, std::max(kTimeWidth, metrics.horizontalAdvance("00:00:00.000") + kTimeMargin));
}

void DialogDataEvents::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange)
        updateFonts();
    if (pEvent->type() == QEvent::StyleChange)
        updateColours();
}

int DialogDataEvents::eventCount() const
{
    const std::vector<Event>& events = mEvents.events();
    return static_cast<int>(std::count_if(events.begin(), events.end(), [this](const Event& event) { return isInside(event); }));
}

bool DialogDataEvents::isInside(const Event& event) const
{
    const RecordFlight& flight = mSession.container.selectedFlight();
    return !flight.valid || (event.time >= flight.startTime && event.time <= flight.endTime);
}

void DialogDataEvents::updateRecord(RecordData* pRecord)
{
    const auto isFilling = mpFollower->filling();
    mIsSought = false;
    mIsOutdated = true;
    if (!mPrepared || pRecord != mpRecord)
        mEvents = pRecord ? mKind.scan(*pRecord, mSession.profile) : EventList();
    mpRecord = pRecord;
    mPrepared = false;
    mpTable->setRowCount(0);
    if (pRecord) {
        fillTable();
        setTime(mSession.container.startTime());
    }
    updateHint();
}

void DialogDataEvents::prepare(RecordData* pRecord)
{
    mpRecord = pRecord;
    mPrepared = false;
    mIsOutdated = true;
    mIsSought = pRecord != nullptr;
    if (!mTask.isRunning())
        find();
}

void DialogDataEvents::find()
{
    if (!mIsSought)
        return;
    mIsOutdated = false;
    mTask.start([this, pRecord = mSession.container.record(), context = mSession.profile.context()](Progress& /*progress*/) {
        mFound = mKind.scan(*pRecord, context);
    });
}

void DialogDataEvents::slotFound()
{
    if (mIsOutdated)
        return find();
    mIsSought = false;
    if (!mTask.error().isEmpty())
        return; // they are looked for again when somebody wants to see them
    mEvents = std::exchange(mFound, {});
    mPrepared = true;
    Q_EMIT signalEvents();
}

void DialogDataEvents::fillTable()
{
    const std::vector<Event>& events = mEvents.events();
    mpTable->setRowCount(static_cast<int>(std::min<std::size_t>(events.size(), kMaxRows)));
    for (int row = 0; row < mpTable->rowCount(); ++row) {
        const Event& event = events[static_cast<std::size_t>(row)];
        QTableWidgetItem* pTime = createItem({});
        pTime->setData(Qt::UserRole, timeData(event.time));
        mpTable->setItem(row, 0, pTime);
        mpTable->setItem(row, 1, createText(event));
        giveColours(*pTime, *mpTable->item(row, 1), event);
    }
    showTimes();
}

void DialogDataEvents::showTimes()
{
    const auto isFilling = mpFollower->filling();
    const TimeReference times = TimeReference::of(mSession.property, mSession.container);
    mpTable->horizontalHeaderItem(0)->setText(times.title());
    showNotes();
    for (int row = 0; row < mpTable->rowCount(); ++row)
        mpTable->item(row, 0)->setText(times.text(mpTable->item(row, 0)->data(Qt::UserRole).toLongLong()));
}

void DialogDataEvents::updateColours()
{
    const auto isFilling = mpFollower->filling();
    for (int row = 0; row < mpTable->rowCount(); ++row)
        giveColours(*mpTable->item(row, 0), *mpTable->item(row, 1), mEvents.events()[static_cast<std::size_t>(row)]);
}

void DialogDataEvents::giveColours(QTableWidgetItem& time, QTableWidgetItem& text, const Event& event) const
{
    const bool inside = isInside(event);
    if (event.colour.isValid())
        text.setBackground(inside ? event.colour : dimmed(event.colour));
    if (!inside)
        time.setForeground(dimText({}));
    if (!inside)
        text.setForeground(dimText(event.colour));
    else if (event.colour.isValid())
        text.setForeground(textColourOn(event.colour)); // legible in every style
}

QTableWidgetItem* DialogDataEvents::createText(const Event& event) const
{
    const QString text = QString::fromStdString(mEvents.text(event)), state = mKind.stateName(event.state);
    QTableWidgetItem* pText = createItem(text);
    QString toolTip = text.toHtmlEscaped() + (state.isEmpty() ? QString() : "<br/>" + state);
    if (!isInside(event))
        toolTip += "<br/>" + tr("Outside of the selected flight");
    pText->setData(kShortText, text.mid(QString::fromStdString(mEvents.source(event).group).size() + 1));
    pText->setToolTip("<qt>" + toolTip + "</qt>");
    pText->setData(Qt::AccessibleDescriptionRole, state);
    pText->setIcon(eventMark(event.state));
    return pText;
}

void DialogDataEvents::updateHint()
{
    const int rows = mpTable->rowCount(), all = static_cast<int>(mEvents.events().size());
    mpHint->setVisible(mpRecord && (rows == 0 || rows < all));
    mpHint->setText(rows == 0 ? mKind.empty
                              : tr("Only the first %1 of %2 events are listed.").arg(QLocale().toString(rows), QLocale().toString(all)));
}

void DialogDataEvents::setTime(double time)
{
    if (mpTable->rowCount() == 0)
        return;
    mTime = time;
    std::optional<int> row;
    if (const std::optional<std::size_t> found = mEvents.rowAt(time))
        row = static_cast<int>(std::min<std::size_t>(*found, static_cast<std::size_t>(mpTable->rowCount() - 1)));
    mpFollower->show(row);
}

/// Whether the current event, which nobody chose, lies before the view time: the next one upwards is itself then.
bool DialogDataEvents::isBehind() const
{
    const QTableWidgetItem* pItem = mpTable->item(mpTable->currentRow(), 0);
    return pItem && !mpFollower->isChosen() && pItem->data(Qt::UserRole).toLongLong() < wholeMilliseconds(mTime);
}

bool DialogDataEvents::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pObject != mpTable || pEvent->type() != QEvent::KeyPress)
        return QWidget::eventFilter(pObject, pEvent);
    const auto* pKey = static_cast<QKeyEvent*>(pEvent);
    if ((pKey->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier || pKey->key() != Qt::Key_Up)
        return false;
    if (isBehind())
        mpFollower->choose();
    else if (mpTable->currentRow() >= 0)
        return false;
    return true; // before the first event there is none upwards
}

} // namespace ZARN
