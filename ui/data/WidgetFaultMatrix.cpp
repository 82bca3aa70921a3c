#include "ui/data/WidgetFaultMatrix.h"

#include "analysis/FaultTimeline.h"
#include "app/gui/TextSize.h"
#include "card/record/RecordData.h"
#include "project/TimeReference.h"
#include "ui/data/GraphJump.h"
#include "ui/data/WidgetErrorItem.h"
#include "ui/data/WidgetErrorTime.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr int kRowHeight = 150;
constexpr int kMostHeight = 320; // a damaged profile may have names of any length
constexpr int kTableHeight = 180;
constexpr int kFirstWidth = 15;
constexpr int kMinimumWidth = 20;
constexpr int kNumberGap = 6; // between the numbers of two columns

int columnOf(int bit)
{
    return WidgetFaultMatrix::kBits - 1 - bit;
}

} // namespace

WidgetFaultMatrix::WidgetFaultMatrix(const Session& session, QWidget* pParent)
    : QFrame(pParent), mSession(session), mpTitle(new QLabel),
      mpTimeline(new WidgetErrorTime(session.container, [this](double time) { return textAt(time); })), mpTable(new QTableWidget(1, kBits))
{
    setFrameStyle(QFrame::Panel | QFrame::Plain);
    mpTitle->setTextFormat(Qt::PlainText);
    mpTitle->setAlignment(Qt::AlignCenter);
    createTable();
    updateFonts();
    connect(mpTimeline, &WidgetErrorTime::signalTime, this, &WidgetFaultMatrix::signalTime);
    connect(mpTimeline, &WidgetErrorTime::signalShow, this, [this](double time) { showBits(faultWordAt(channel(), time).value_or(0), time); });
    new GraphJump(mpTable, [this](const QModelIndex& index) { showBits(1U << columnOf(index.column()), mTime); });
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpTitle);
    pLayout->addWidget(mpTimeline);
    pLayout->addWidget(mpTable);
}

void WidgetFaultMatrix::createTable()
{
    mpTable->viewport()->installEventFilter(this); // has its new width later than this panel
    mpTable->verticalHeader()->hide();
    mpTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpTable->setSelectionMode(QAbstractItemView::SingleSelection);
    mpTable->setTabKeyNavigation(false);
    mpTable->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView* pHeader = mpTable->horizontalHeader();
    pHeader->setSectionResizeMode(QHeaderView::Fixed);
    QStringList labels;
    for (int column = 0; column < kBits; ++column)
        labels.append(QString::number(kBits - 1 - column));
    mpTable->setHorizontalHeaderLabels(labels);
    pHeader->setMinimumSectionSize(kFirstWidth);
    for (int column = 0; column < kBits; ++column)
        mpTable->setColumnWidth(column, kFirstWidth);
    pHeader->setMinimumSectionSize(kMinimumWidth);
}

void WidgetFaultMatrix::setData(const FaultMatrix& matrix)
{
    mMatrix = matrix;
    mpTitle->setText(QString::fromStdString(matrix.name));
    mpTable->setAccessibleName(mpTitle->text());
    mpTimeline->setData(matrix);
    for (int bit = 0; bit < kBits; ++bit) {
        auto* pItem = new WidgetErrorItem;
        const auto found = matrix.bits.find(bit);
        if (found == matrix.bits.end()) {
            pItem->setText("para.name");
        } else {
            pItem->setText(QString::fromStdString(found->second.name));
            pItem->setToolTip("<qt>" + QString::fromStdString(found->second.description).toHtmlEscaped() + "</qt>");
            pItem->setType(found->second.errorType);
        }
        mItems[static_cast<std::size_t>(bit)] = pItem;
        mpTable->setCellWidget(0, columnOf(bit), pItem); // deletes the one that was there
    }
    layoutTable();
}

void WidgetFaultMatrix::updateRecord(RecordData* pRecord)
{
    mpRecord = pRecord;
    mpTimeline->updateRecord(pRecord);
    showWord(0);
}

void WidgetFaultMatrix::showWord(uint32_t word)
{
    for (std::size_t bit = 0; bit < mItems.size(); ++bit) {
        if (mItems[bit])
            mItems[bit]->setErrorState((word >> bit & 1U) != 0);
    }
}

const RecordChannel* WidgetFaultMatrix::channel() const
{
    return mpRecord ? mpRecord->channel(static_cast<uint32_t>(mMatrix.id)) : nullptr;
}

void WidgetFaultMatrix::setTime(double time)
{
    mTime = time;
    mpTimeline->setTime(time);
    showWord(faultWordAt(channel(), time).value_or(0));
}

std::set<std::string> WidgetFaultMatrix::names(uint32_t word) const
{
    std::set<std::string> names;
    for (const auto& [bit, fault] : mMatrix.bits) {
        if (bit >= 0 && bit < kBits && (word >> bit & 1U) != 0)
            names.insert(fault.name);
    }
    return names;
}

QString WidgetFaultMatrix::textAt(double time) const
{
    QStringList lines{TimeReference::of(mSession.property, mSession.container).textAt(time)};
    for (const std::string& name : names(faultWordAt(channel(), time).value_or(0)))
        lines << QString::fromStdString(name).toHtmlEscaped();
    return lines.join("<br/>");
}

/// The graph has a parameter of its own for each bit.
void WidgetFaultMatrix::showBits(uint32_t word, double time)
{
    Q_EMIT signalMoment(GraphMoment::around(time, names(word)));
}

void WidgetFaultMatrix::updateLiveData()
{
    const RecordChannel* pChannel = channel();
    if (pChannel && !pChannel->entries.empty())
        showWord(faultWord(pChannel->last().payload));
}

/// Title, numbers and names keep their proportions to the program's text.
void WidgetFaultMatrix::updateFonts()
{
    const int size = textSize(*this);
    if (size == mTextSize)
        return;
    mTextSize = size;
    mpTitle->setStyleSheet(QString("font-weight: bold; font-size: %1px;").arg(textSize(size, EText::eHeading)));
    mpTable->horizontalHeader()->setStyleSheet(
        QString("QHeaderView::section { font-size: %1px; padding: 2px 0px; }").arg(textSize(size, EText::eFine)));
    layoutTable();
}

/// Every name and number is whole, with a scroll bar below as without it.
void WidgetFaultMatrix::layoutTable()
{
    QFont font = mpTable->horizontalHeader()->font();
    font.setPixelSize(textSize(mTextSize, EText::eFine));
    int row = kRowHeight, least = std::max(kMinimumWidth, QFontMetrics(font).horizontalAdvance("00") + kNumberGap);
    for (const WidgetErrorItem* pItem : mItems) {
        row = pItem ? std::max(row, pItem->lengthOfText()) : row;
        least = pItem ? std::max(least, pItem->thicknessOfText()) : least;
    }
    row = std::min(row, kMostHeight);
    const int width = std::max(mpTable->viewport()->width() / kBits, least);
    for (int column = 0; column < kBits; ++column)
        mpTable->setColumnWidth(column, width);
    mpTable->setRowHeight(0, row);
    const int bar = width * kBits > mpTable->viewport()->width() ? mpTable->horizontalScrollBar()->sizeHint().height() : 0;
    mpTable->setMinimumHeight(std::max(kTableHeight, mpTable->horizontalHeader()->sizeHint().height() + row + bar + 2 * mpTable->frameWidth()));
}

void WidgetFaultMatrix::changeEvent(QEvent* pEvent)
{
    QFrame::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        updateFonts();
}

bool WidgetFaultMatrix::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pObject == mpTable->viewport() && pEvent->type() == QEvent::Resize)
        layoutTable();
    return QFrame::eventFilter(pObject, pEvent);
}

} // namespace ZARN
