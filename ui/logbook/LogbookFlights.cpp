#include "ui/logbook/LogbookFlights.h"

#include "app/gui/WheelGuard.h"
#include "ui/logbook/DateField.h"
#include "ui/logbook/model/LogbookTexts.h"
#include "ui/overview/model/VerdictSign.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>

#include <array>

namespace ZARN {

namespace {

constexpr int kTypingPause = 150; // milliseconds
constexpr int kSign = 14;         // pixels

// By column.
constexpr std::array kLetters = {19, 22, 0, 0, 0, 14, 29, 12};
constexpr int kFewestLetters = 10;
static_assert(kLetters.size() == LogbookModel::eColumns);

/// Puts the sign of the verdict before its word, and shows of a card that is too long its end as well: which cycle and flight it was.
class FlightDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(pOption, index);
        const QVariant verdict = index.data(Qt::UserRole);
        if (index.column() == LogbookModel::eCard)
            pOption->textElideMode = Qt::ElideMiddle;
        if (index.column() != LogbookModel::eVerdict || !verdict.isValid())
            return;
        const double ratio = pOption->widget ? pOption->widget->devicePixelRatioF() : 1.0;
        QPixmap sign(QSizeF(kSign * ratio, kSign * ratio).toSize());
        sign.setDevicePixelRatio(ratio);
        sign.fill(Qt::transparent);
        QPainter painter(&sign);
        VerdictSign::paint(painter, static_cast<EVerdict>(verdict.toInt()), QRectF(0, 0, kSign, kSign));
        painter.end();
        pOption->features |= QStyleOptionViewItem::HasDecoration;
        pOption->icon = QIcon(sign);
        pOption->decorationSize = QSize(kSign, kSign);
    }
};

} // namespace

LogbookFlights::LogbookFlights(LogbookWorker& worker, QWidget* pParent)
    : QWidget(pParent), mModel(worker), mpFrom(new DateField(tr("From"))), mpUntil(new DateField(tr("Until"))), mpVerdict(new QComboBox),
      mpText(new QLineEdit), mpTable(new QTableView), mpTotals(new QLabel),
      mpOpen(new QPushButton(tr("Open flight")))
{
    createTable();
    mpTotals->setTextFormat(Qt::PlainText);
    mpTotals->setWordWrap(true);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(createFilter());
    pLayout->addWidget(mpTable, 1);
    auto* pRow = new QHBoxLayout;
    pRow->addWidget(mpTotals, 1);
    pRow->addWidget(mpOpen);
    pLayout->addLayout(pRow);
    mpOpen->setEnabled(false);
    connect(mpOpen, &QPushButton::clicked, this, [this] { slotPicked(mpTable->currentIndex()); });
    mTyping.setSingleShot(true);
    mTyping.setInterval(kTypingPause);
    for (const DateField* pDate : {mpFrom, mpUntil})
        connect(pDate, &DateField::signalDate, &mTyping, qOverload<>(&QTimer::start));
    connect(&mTyping, &QTimer::timeout, this, &LogbookFlights::takeFilter);
    connect(&mModel, &LogbookModel::signalSelected, this, &LogbookFlights::slotSelected);
}

QWidget* LogbookFlights::createFilter()
{
    mpVerdict->setAccessibleName(tr("Verdict"));
    mpVerdict->addItem(tr("Any verdict"), QString());
    for (const EVerdict verdict : {EVerdict::eLimit, EVerdict::eWarning, EVerdict::eOk, EVerdict::eUnknown})
        mpVerdict->addItem(LogbookTexts::verdictName(verdict), verdictKey(verdict));
    WheelGuard::install(*mpVerdict);
    connect(mpVerdict, &QComboBox::currentIndexChanged, this, &LogbookFlights::takeFilter);
    mpText->setPlaceholderText(tr("Text in aircraft, card, notes or incidents"));
    mpText->setAccessibleName(tr("Text"));
    mpText->setClearButtonEnabled(true);
    connect(mpText, &QLineEdit::textChanged, this, [this] { mTyping.start(); });
    auto* pFilter = new QWidget;
    auto* pRow = new QHBoxLayout(pFilter);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->addWidget(new QLabel(tr("From")));
    pRow->addWidget(mpFrom);
    pRow->addWidget(new QLabel(tr("until")));
    pRow->addWidget(mpUntil);
    pRow->addWidget(mpVerdict);
    pRow->addWidget(mpText, 1);
    return pFilter;
}

void LogbookFlights::createTable()
{
    mpTable->setObjectName("flights");
    mpTable->setModel(&mModel);
    mpTable->setAccessibleName(tr("Flights"));
    mpTable->setItemDelegate(new FlightDelegate(mpTable));
    mpTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpTable->setSelectionMode(QAbstractItemView::SingleSelection);
    mpTable->setAlternatingRowColors(true);
    mpTable->setShowGrid(false);
    mpTable->setWordWrap(false);
    mpTable->setTabKeyNavigation(false);
    mpTable->verticalHeader()->hide();
    mpTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed); // nothing is measured, whatever the number of rows
    QHeaderView* pHeader = mpTable->horizontalHeader();
    pHeader->setStretchLastSection(true);
    pHeader->setHighlightSections(false);
    pHeader->setSortIndicator(LogbookModel::eDate, Qt::DescendingOrder);
    mpTable->setSortingEnabled(true);
    connect(pHeader, &QHeaderView::sortIndicatorChanged, this, &LogbookFlights::arrange);
    connect(pHeader, &QHeaderView::sectionResized, this,
            [this] { mIsUsers |= !mIsArranging && isVisible() && QGuiApplication::mouseButtons() != Qt::NoButton; });
    for (QWidget* pWidget : {static_cast<QWidget*>(pHeader), static_cast<QWidget*>(mpTable)}) {
        pWidget->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(pWidget, &QWidget::customContextMenuRequested, this,
                [this, pWidget](const QPoint& point) { chooseColumns(pWidget->mapToGlobal(point)); });
    }
    connect(mpTable, &QTableView::activated, this, &LogbookFlights::slotPicked);
    connect(mpTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& index) {
        mpOpen->setEnabled(index.isValid());
        if (index.isValid())
            mCurrent = mModel.flightOf(index.row());
    });
}

void LogbookFlights::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    arrange();
}

void LogbookFlights::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    arrange();
}

/// @return how narrow a column may be: as its title without the room for an arrow, but for the one that has it.
int LogbookFlights::leastWidth(int column) const
{
    constexpr int kPadding = 18; // of the style, both sides and the border
    const QHeaderView& header = *mpTable->horizontalHeader();
    if (header.sortIndicatorSection() == column)
        return header.sectionSizeHint(column);
    QFont font = header.font();
    font.setBold(true);
    return std::min(header.sectionSizeHint(column),
                    QFontMetrics(font).horizontalAdvance(mModel.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()) + kPadding);
}

/// As wide as what stands in them, and their titles, take; where that is too much columns give way, to their titles at most: first
/// those of numbers, which have room to spare.
void LogbookFlights::arrange()
{
    if (mIsUsers || !isVisible())
        return;
    const QScopedValueRollback arranging(mIsArranging, true);
    QHeaderView* pHeader = mpTable->horizontalHeader();
    pHeader->ensurePolished();
    const int letter = fontMetrics().horizontalAdvance('x');
    std::array<int, LogbookModel::eColumns> widths{};
    const QScrollBar* pBar = mpTable->verticalScrollBar(); // comes with the flights, after this
    int rest = mpTable->viewport()->width() - (pBar->isVisible() ? 0 : pBar->sizeHint().width());
    for (int column = 0; column < LogbookModel::eColumns; ++column) {
        const auto place = static_cast<std::size_t>(column);
        if (!mpTable->isColumnHidden(column))
            widths[place] = std::max(kLetters[place] * letter, pHeader->sectionSizeHint(column));
        rest -= widths[place];
    }
    for (const int column : {LogbookModel::eFuel, LogbookModel::eClimb, LogbookModel::eFlightTime, LogbookModel::eCard, LogbookModel::eEngine,
                             LogbookModel::eNotes, LogbookModel::eVerdict}) {
        int& width = widths[static_cast<std::size_t>(column)];
        if (rest >= 0 || width == 0)
            continue;
        const bool isOfWords = kLetters[static_cast<std::size_t>(column)] > 0;
        const int less = std::min(-rest, std::max(0, width - std::max(isOfWords ? kFewestLetters * letter : 0, leastWidth(column))));
        width -= less;
        rest += less;
    }
    for (int column = 0; column < LogbookModel::eColumns; ++column) {
        if (widths[static_cast<std::size_t>(column)] > 0)
            pHeader->resizeSection(column, widths[static_cast<std::size_t>(column)]);
    }
}

void LogbookFlights::setHiddenColumns(const QStringList& keys)
{
    for (int column = LogbookModel::eDate + 1; column < LogbookModel::eColumns; ++column) // without its date nobody knows a flight
        mpTable->setColumnHidden(column, keys.contains(LogbookModel::key(column)));
    arrange();
}

void LogbookFlights::chooseColumns(const QPoint& point)
{
    QMenu menu(this);
    QStringList hidden;
    for (int column = LogbookModel::eDate + 1; column < LogbookModel::eColumns; ++column) {
        QAction* pAction = menu.addAction(mModel.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        pAction->setCheckable(true);
        pAction->setChecked(!mpTable->isColumnHidden(column));
    }
    if (!menu.exec(point))
        return;
    for (int column = LogbookModel::eDate + 1; column < LogbookModel::eColumns; ++column) {
        if (!menu.actions()[column - 1]->isChecked())
            hidden << LogbookModel::key(column);
    }
    mIsUsers = false;
    setHiddenColumns(hidden);
    Q_EMIT signalHiddenColumns(hidden);
}

void LogbookFlights::setEngine(const std::string& engine)
{
    mFilter.engine = engine;
    takeFilter();
}

void LogbookFlights::takeFilter()
{
    mTyping.stop();
    mFilter.from = mpFrom->date();
    mFilter.until = mpUntil->date();
    mFilter.verdict = mpVerdict->currentData().toString().toStdString();
    mFilter.text = mpText->text();
    mModel.setFilter(mFilter);
}

QString LogbookFlights::filterText() const
{
    QStringList parts;
    if (mFilter.from.isValid())
        parts.append(tr("from %1").arg(LogbookTexts::date(mFilter.from)));
    if (mFilter.until.isValid())
        parts.append(tr("until %1").arg(LogbookTexts::date(mFilter.until)));
    if (!mFilter.verdict.empty())
        parts.append(tr("verdict %1").arg(mpVerdict->currentText()));
    if (!mFilter.text.trimmed().isEmpty())
        parts.append(tr("with \"%1\"").arg(mFilter.text.trimmed()));
    return parts.join(", ");
}

void LogbookFlights::setUnits(const LogbookUnits& units)
{
    mModel.setUnits(units);
    slotSelected();
    arrange();
}

QString LogbookFlights::totalsText() const
{
    return LogbookTexts::totals(mModel.totals(), mModel.units());
}

void LogbookFlights::slotSelected()
{
    mpTotals->setText(mModel.flights().empty() ? tr("No flight.") : totalsText());
    mpOpen->setEnabled(false);
    const int row = mModel.rowOf(mCurrent);
    if (row >= 0) { // the same flight stays chosen where there is one
        mpTable->selectRow(row);
        mpTable->scrollTo(mModel.index(row, 0));
    }
}

void LogbookFlights::slotPicked(const QModelIndex& index)
{
    const LogbookEntry* pEntry = index.isValid() ? mModel.entry(index.row()) : nullptr;
    if (pEntry)
        Q_EMIT signalOpen(QString::fromStdString(pEntry->cycleId), pEntry->number);
}

} // namespace ZARN
