#include "ui/logbook/DialogLogbook.h"

#include "app/gui/FirstSize.h"
#include "app/gui/Heading.h"
#include "app/gui/WheelGuard.h"
#include "ui/logbook/LogbookEngines.h"
#include "ui/logbook/LogbookFlights.h"
#include "ui/logbook/LogbookNotes.h"
#include "ui/logbook/LogbookTrends.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr int kLookPeriod = 2000; // milliseconds from look to look at the store

} // namespace

DialogLogbook::DialogLogbook(LogbookWorker& worker, QWidget* pOptions, QWidget* pParent)
    : QDialog(pParent, Qt::Window), mWorker(worker), mpEngine(new QComboBox), mpProblem(new QLabel), mpEmpty(new QLabel),
      mpWritten(new QLabel), mpPages(new QTabWidget), mpFlights(new LogbookFlights(worker)), mpTrends(new LogbookTrends(worker)),
      mpEngines(new LogbookEngines(worker)), mpNotes(new LogbookNotes(worker))
{
    setWindowTitle(tr("Logbook"));
    setObjectName("logbook");
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(createHead());
    for (QLabel* pLabel : {mpProblem, mpEmpty, mpWritten}) {
        pLabel->setObjectName(pLabel == mpProblem ? "warning" : "quiet");
        pLabel->setTextFormat(Qt::PlainText);
        pLabel->setWordWrap(true);
        pLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
        pLabel->hide();
        pLayout->addWidget(pLabel);
    }
    setAllowed(false);
    mpPages->addTab(mpFlights, tr("Flights"));
    mpPages->addTab(mpTrends, tr("Trends"));
    mpPages->addTab(mpEngines, tr("Engines and services"));
    mpPages->addTab(mpNotes, tr("Notes"));
    mpPages->addTab(pOptions, tr("Options"));
    pLayout->addWidget(mpPages, 1);
    connectPages();
    connect(&mLook, &QTimer::timeout, &mWorker, &LogbookWorker::look);
    resize(firstSize(*this, QSize(1100, 640)));
}

QWidget* DialogLogbook::createHead()
{
    mpEngine->setAccessibleName(tr("Aircraft or engine"));
    mpEngine->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mpEngine->setMinimumContentsLength(26);
    mpEngine->addItem(tr("All engines"), QString());
    WheelGuard::install(*mpEngine);
    auto* pExport = new QPushButton(tr("Export table ..."));
    pExport->setToolTip(tr("The flights that are shown, as a CSV or PDF file"));
    pExport->setAutoDefault(false);
    pExport->setObjectName("exportFlights");
    pExport->setEnabled(false);
    connect(pExport, &QPushButton::clicked, this, &DialogLogbook::exportFlights);
    connect(&mpFlights->model(), &LogbookModel::signalSelected, pExport, [this, pExport] { pExport->setEnabled(!mpFlights->model().flights().empty()); });
    auto* pHead = new QWidget;
    auto* pRow = new QHBoxLayout(pHead);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->addWidget(new Heading(tr("Logbook")));
    pRow->addStretch();
    pRow->addWidget(mpEngine);
    pRow->addWidget(pExport);
    return pHead;
}

void DialogLogbook::connectPages()
{
    connect(mpEngine, &QComboBox::currentIndexChanged, this, &DialogLogbook::setEngine);
    connect(&mWorker, &LogbookWorker::signalChanged, this, &DialogLogbook::reload);
    connect(&mWorker, &LogbookWorker::signalFailed, this, &DialogLogbook::tell);
    connect(&mWorker, &LogbookWorker::signalFound, this, &DialogLogbook::setIsThere);
    connect(mpFlights, &LogbookFlights::signalOpen, this, [this](const QString& cycle, int flight) { Q_EMIT signalOpen(cycle, flight, NAN); });
    connect(mpFlights, &LogbookFlights::signalHiddenColumns, this, &DialogLogbook::signalHiddenColumns);
    connect(mpTrends, &LogbookTrends::signalOpen, this, [this](const QString& cycle, int flight) { Q_EMIT signalOpen(cycle, flight, NAN); });
    connect(mpNotes, &LogbookNotes::signalOpen, this, [this](const QString& cycle, double time) { Q_EMIT signalOpen(cycle, 0, time); });
    connect(mpNotes, &LogbookNotes::signalExport, this, [this] { Q_EMIT signalExportNotes(mpNotes->notes()); });
    connect(mpNotes, &LogbookNotes::signalFailed, this, &DialogLogbook::tell);
    connect(mpEngines, &LogbookEngines::signalFailed, this, &DialogLogbook::tell);
    connect(mpEngines, &LogbookEngines::signalEngine, this, [this](const QString& engine) {
        if (const int place = mpEngine->findData(engine); place >= 0)
            mpEngine->setCurrentIndex(place);
    });
    for (QPushButton* pButton : findChildren<QPushButton*>())
        pButton->setAutoDefault(false); // Return belongs to the tables
}

void DialogLogbook::reload()
{
    tell({});
    mWorker.ask([](LogbookReader& reader) { return reader.engines(); }, [this](const std::vector<LogbookEngine>& engines) { fillEngines(engines); });
    mpFlights->reload();
    mpTrends->reload();
    mpNotes->reload();
}

void DialogLogbook::fillEngines(const std::vector<LogbookEngine>& engines)
{
    const QVariant chosen = mpEngine->currentData();
    {
        const QSignalBlocker blocker(mpEngine);
        mpEngine->clear();
        mpEngine->addItem(tr("All engines"), QString());
        for (const LogbookEngine& engine : engines)
            mpEngine->addItem(LogbookTexts::engine(engine.id, engine.aircraft), QString::fromStdString(engine.id));
        const int before = std::max(mpEngine->findData(chosen), 0);
        mpEngine->setCurrentIndex(before == 0 && engines.size() == 1 ? 1 : before); // the only one there is
    }
    mpEngines->setEngines(engines);
    if (mpEngine->currentData() != chosen)
        setEngine();
}

void DialogLogbook::setEngine()
{
    const std::string engine = mpEngine->currentData().toString().toStdString();
    mpFlights->setEngine(engine);
    mpTrends->setEngine(engine);
    mpEngines->setEngine(engine);
    mpNotes->setEngine(engine);
}

void DialogLogbook::exportFlights()
{
    QStringList parts{mpEngine->currentText()};
    if (const QString filter = mpFlights->filterText(); !filter.isEmpty())
        parts.append(filter);
    Q_EMIT signalExportFlights(mpFlights->model().flights(), parts.join(", "), mpFlights->totalsText());
}

void DialogLogbook::setContext(const DecodingContext& context)
{
    mpTrends->setContext(context);
    mpFlights->setUnits(LogbookUnits(context));
}

void DialogLogbook::setHiddenColumns(const QStringList& keys)
{
    mpFlights->setHiddenColumns(keys);
}

void DialogLogbook::setIsThere(bool isThere)
{
    mpEmpty->setVisible(!isThere && mpFlights->model().flights().empty()); // what was removed is still shown
}

void DialogLogbook::setAllowed(bool isAllowed)
{
    mpEmpty->setText(isAllowed ? tr("Nothing is kept yet. Cards that you open are taken in.")
                               : tr("Nothing is kept yet. Cards that you open are taken in once you allow it on the page \"Options\"."));
}

void DialogLogbook::tell(const QString& problem)
{
    QStringList lines{mLasting, mLasting.contains(problem) ? QString() : problem};
    lines.removeAll(QString());
    mpProblem->setText(lines.join('\n'));
    mpProblem->setVisible(!lines.isEmpty());
}

void DialogLogbook::tellWritten(const QString& path)
{
    mpWritten->setText(tr("Written: %1").arg(QDir::toNativeSeparators(path)));
    mpWritten->show();
}

void DialogLogbook::tellLasting(const QString& problem)
{
    if (std::exchange(mLasting, problem) != problem)
        tell({});
}

void DialogLogbook::showEvent(QShowEvent* pEvent)
{
    QDialog::showEvent(pEvent);
    const bool isThere = QFileInfo::exists(mWorker.path());
    setIsThere(isThere);
    if (isThere && !std::exchange(mIsShown, true)) // others may have opened the store before
        reload();
    mWorker.look();
    mLook.start(kLookPeriod);
}

void DialogLogbook::hideEvent(QHideEvent* pEvent)
{
    mLook.stop();
    mpWritten->hide();
    tellLasting({});
    tell({});
    QDialog::hideEvent(pEvent);
}

} // namespace ZARN
