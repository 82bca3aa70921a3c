#include "ui/data/WidgetFaultMatrix.h"

#include "analysis/FaultTimeline.h"
#include "card/record/RecordData.h"
#include "ui/data/WidgetErrorItem.h"
#include "ui/data/WidgetErrorTime.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr int kRowHeight = 150;
constexpr int kTableHeight = 180;
constexpr int kFirstWidth = 15;
constexpr int kMinimumWidth = 20;

int columnOf(int bit)
{
    return WidgetFaultMatrix::kBits - 1 - bit;
}

} // namespace

WidgetFaultMatrix::WidgetFaultMatrix(const CardContainer& container, QWidget* pParent)
    : QFrame(pParent), mpTitle(new QLabel), mpTimeline(new WidgetErrorTime(container)), mpTable(new QTableWidget(1, kBits))
{
    setFrameStyle(QFrame::Panel | QFrame::Plain);
    mpTitle->setTextFormat(Qt::PlainText);
    mpTitle->setAlignment(Qt::AlignCenter);
    mpTitle->setStyleSheet("font-weight: bold; font-size: 16px;");
    createTable();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpTitle);
    pLayout->addWidget(mpTimeline);
    pLayout->addWidget(mpTable);
}

void WidgetFaultMatrix::createTable()
{
    mpTable->setMinimumHeight(kTableHeight);
    mpTable->viewport()->installEventFilter(this); // has its new width later than this panel
    mpTable->setRowHeight(0, kRowHeight);
    mpTable->verticalHeader()->hide();
    mpTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpTable->setSelectionMode(QAbstractItemView::SingleSelection);
    mpTable->setStyleSheet("selection-background-color: rgba(100, 100, 255, 255);");
    mpTable->setTabKeyNavigation(false);
    mpTable->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView* pHeader = mpTable->horizontalHeader();
    pHeader->setStyleSheet("QHeaderView::section { font-size: 8px; padding: 2px 0px; }");
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

void WidgetFaultMatrix::setTime(double time)
{
    mpTimeline->setTime(time);
    const RecordChannel* pChannel = mpRecord ? mpRecord->channel(static_cast<uint32_t>(mMatrix.id)) : nullptr;
    showWord(faultWordAt(pChannel, time).value_or(0));
}

void WidgetFaultMatrix::updateLiveData()
{
    const RecordChannel* pChannel = mpRecord ? mpRecord->channel(static_cast<uint32_t>(mMatrix.id)) : nullptr;
    if (pChannel && !pChannel->entries.empty())
        showWord(faultWord(pChannel->last().payload));
}

void WidgetFaultMatrix::layoutColumns()
{
    const int width = std::max(mpTable->viewport()->width() / kBits, kMinimumWidth);
    for (int column = 0; column < kBits; ++column)
        mpTable->setColumnWidth(column, width);
}

bool WidgetFaultMatrix::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pObject == mpTable->viewport() && pEvent->type() == QEvent::Resize)
        layoutColumns();
    return QFrame::eventFilter(pObject, pEvent);
}

} // namespace ZARN
