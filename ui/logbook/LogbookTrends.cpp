#include "ui/logbook/LogbookTrends.h"

#include "app/FileName.h"
#include "profile/DisplayUnit.h"
#include "store/StoreReader.h"
#include "ui/logbook/WidgetTrend.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace ZARN {

namespace {

QString nameOf(const JudgedTrend& trend)
{
    const QString name = QString::fromStdString(trend.trend.parameter) + " " + LogbookTexts::phase(trend.trend.phase);
    return trend.trend.unit.empty() ? name : name + " [" + QString::fromStdString(trend.trend.unit) + "]";
}

/// The same in the units of a context; judged it was in metric ones.
JudgedTrend shownIn(JudgedTrend judged, const DecodingContext& context)
{
    const DisplayUnit shown(context, judged.trend.parameter, judged.trend.unit);
    judged.trend.unit = shown.unit();
    for (TrendPoint& point : judged.trend.points) {
        for (double* pValue : {&point.median, &point.p05, &point.p95})
            *pValue = shown.value(*pValue);
    }
    for (TrendJudgement& judgement : judged.judgements) {
        for (double* pValue : {&judgement.band.p05, &judgement.band.median, &judgement.band.p95})
            *pValue = shown.value(*pValue);
    }
    return judged;
}

/// The latest flight is what matters.
int weight(const JudgedTrend& trend)
{
    return 2 * trend.isUnusual() + trend.isDrifting();
}

} // namespace

LogbookTrends::LogbookTrends(LogbookWorker& worker, QWidget* pParent)
    : QWidget(pParent), mWorker(worker), mpList(new QListWidget), mpTitle(new QLabel), mpChart(new WidgetTrend), mpPoint(new QLabel),
      mpOpen(new QPushButton(tr("Open flight"))), mpPointRow(createPointRow())
{
    mpList->setWordWrap(true); // names are as long as they are
    mpList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpList->setResizeMode(QListView::Adjust);
    mpList->setAccessibleName(tr("Parameters and phases"));
    for (QLabel* pLabel : {mpTitle, mpPoint}) {
        pLabel->setTextFormat(Qt::PlainText);
        pLabel->setWordWrap(true);
        pLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    auto* pRight = new QWidget;
    auto* pColumn = new QVBoxLayout(pRight);
    pColumn->setContentsMargins(0, 0, 0, 0);
    pColumn->addWidget(mpTitle);
    pColumn->addWidget(mpChart, 1);
    pColumn->addWidget(mpPointRow);
    auto* pSplitter = new QSplitter;
    pSplitter->addWidget(mpList);
    pSplitter->addWidget(pRight);
    pSplitter->setStretchFactor(1, 1);
    pSplitter->setSizes({330, 650});
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pSplitter);
    connect(mpList, &QListWidget::currentRowChanged, this, &LogbookTrends::slotCurrent);
    connect(mpChart, &WidgetTrend::signalChosen, this, &LogbookTrends::slotPoint);
    connect(mpChart, &WidgetTrend::signalOpen, this, &LogbookTrends::open);
    connect(mpOpen, &QPushButton::clicked, this, [this] { open(mPoint); });
}

QWidget* LogbookTrends::createPointRow()
{
    auto* pMeaning = new QLabel(tr("Unusual: far from the flights before. Drifting: the latest five lie outside the range of the twenty before them."));
    pMeaning->setObjectName("quiet");
    pMeaning->setWordWrap(true);
    auto* pTexts = new QVBoxLayout;
    pTexts->addWidget(mpPoint);
    pTexts->addWidget(pMeaning);
    auto* pWidget = new QWidget;
    auto* pRow = new QHBoxLayout(pWidget);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->addLayout(pTexts, 1);
    pRow->addWidget(mpOpen);
    return pWidget;
}

void LogbookTrends::open(int point)
{
    const int row = mpList->currentRow();
    if (row < 0 || row >= static_cast<int>(mTrends.size()) || point < 0)
        return;
    const TrendPoint& flight = mTrends[static_cast<std::size_t>(row)]->trend.points[static_cast<std::size_t>(point)];
    Q_EMIT signalOpen(QString::fromStdString(flight.cycleId), static_cast<int>(flight.place.flight));
}

void LogbookTrends::setEngine(const std::string& engine)
{
    mEngine = engine;
    reload();
}

void LogbookTrends::setContext(const DecodingContext& context)
{
    mContext = context;
    reload();
}

void LogbookTrends::reload()
{
    mIsOld = true;
    if (isVisible())
        read();
}

void LogbookTrends::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    if (mIsOld)
        read();
}

void LogbookTrends::read()
{
    mIsOld = false;
    ++mAsked;
    if (mEngine.empty())
        return fill({});
    if (mTrends.empty() || mTrends.front()->trend.engine != mEngine) { // those of another engine are none of this one
        fill({});
        mpTitle->setText(tr("Reading ..."));
    }
    mWorker.ask(
        [engine = mEngine, context = mContext](LogbookReader& reader) {
            Trends trends;
            StoreReader store = reader.trends();
            store.countOnce();
            for (Trend& trend : store.trends(engine)) {
                JudgedTrend judged{std::move(trend), {}};
                judged.judgements = judgeTrend(judged.trend, 1);
                trends.push_back(std::make_shared<const JudgedTrend>(shownIn(std::move(judged), context)));
            }
            std::ranges::stable_sort(trends, std::ranges::greater(), [](const auto& pTrend) { return weight(*pTrend); });
            return trends;
        },
        [this, asked = mAsked](Trends trends) {
            if (asked == mAsked)
                fill(std::move(trends));
        });
}

void LogbookTrends::fill(Trends trends)
{
    const int before = mpList->currentRow();
    const QString chosen = before >= 0 && before < static_cast<int>(mTrends.size()) ? nameOf(*mTrends[static_cast<std::size_t>(before)]) : QString();
    mpList->clear();
    mTrends = std::move(trends);
    int row = 0;
    for (std::size_t i = 0; i < mTrends.size(); ++i) {
        const JudgedTrend& trend = *mTrends[i];
        const QString name = nameOf(trend);
        row = name == chosen ? static_cast<int>(i) : row;
        const QString mark = trend.isUnusual() ? tr("unusual") : trend.isDrifting() ? tr("drifting") : QString();
        auto* pItem = new QListWidgetItem(mark.isEmpty() ? name : mark + ": " + name);
        QFont font = pItem->font();
        font.setBold(!mark.isEmpty());
        pItem->setFont(font);
        mpList->addItem(pItem);
    }
    mpList->setVisible(!mTrends.empty());
    mpChart->setVisible(!mTrends.empty());
    mpPointRow->setVisible(!mTrends.empty());
    mpPoint->clear();
    if (mTrends.empty()) {
        mpChart->setTrend(nullptr);
        mpTitle->setText(mEngine.empty() ? tr("Choose an engine above to see its trends.") : tr("No flight of this engine tells a figure."));
    } else {
        mpList->setCurrentRow(row);
    }
}

void LogbookTrends::slotCurrent(int row)
{
    if (row < 0 || row >= static_cast<int>(mTrends.size()))
        return;
    const auto& pTrend = mTrends[static_cast<std::size_t>(row)];
    mpTitle->setText(tr("%1, %n flight(s)", nullptr, static_cast<int>(pTrend->trend.points.size())).arg(nameOf(*pTrend)));
    mpChart->setTrend(pTrend);
    slotPoint(static_cast<int>(pTrend->trend.points.size()) - 1);
}

void LogbookTrends::slotPoint(int point)
{
    mPoint = point;
    mpPoint->setText(TrendScene::text(*mTrends[static_cast<std::size_t>(mpList->currentRow())], point));
}

} // namespace ZARN
