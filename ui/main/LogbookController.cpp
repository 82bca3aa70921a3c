#include "ui/main/LogbookController.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/RecordSession.h"
#include "store/CardArchive.h"
#include "store/CycleIdentity.h"
#include "store/UnusualFigure.h"
#include "ui/logbook/DialogLogbook.h"
#include "ui/logbook/model/LogbookTexts.h"
#include "ui/main/CardController.h"
#include "ui/main/DialogCard.h"
#include "ui/main/LogbookBar.h"
#include "ui/main/LogbookExport.h"
#include "ui/main/LogbookOptions.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainCommands.h"
#include "ui/main/MainPanels.h"
#include "ui/main/NormalRangeController.h"
#include "ui/main/Notices.h"
#include "ui/main/OverviewController.h"
#include "ui/overview/DialogOverview.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QStackedWidget>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

namespace ZARN {

namespace {

constexpr std::size_t kMostUnusual = 5; // sentences of a cycle

/// What of a cycle the store finds unusual, in sentences.
QStringList unusualTexts(StoreReader& store, const CycleHead& head, const CycleOverview& overview, const DecodingContext& context)
{
    const std::vector<UnusualFigure> found = findUnusual(store, head, overview.flights, overview.review);
    return UnusualText(QLocale(), context).sentences(found, overview.flights.size() > 1, kMostUnusual);
}

} // namespace

LogbookController::LogbookController(const Session& session, const Parts& parts, const QString& dataPath, QWidget* pWindow)
    : QObject(pWindow), mSession(session), mParts(parts), mDataPath(dataPath), mStore(dataPath + "/logbook.sqlite"), mpWindow(pWindow),
      mpWorker(std::make_unique<LogbookWorker>(mStore)), mpBar(new LogbookBar), mpExport(new LogbookExport(session, mStore, pWindow)),
      mIntake(session, mStore)
{
    mParts.panels.addNotice(mpBar);
    mpBar->hide();
    mParts.overview.view().setSupplement(supplement());
    mParts.commands.handle(eActionLogbook, [this](QAction&) { show(); });
    connect(mpBar, &LogbookBar::signalAnswer, this, &LogbookController::slotAnswer);
    connect(&mIntake, &LogbookIntake::signalDone, this, &LogbookController::slotTaken);
    connect(mpWorker.get(), &LogbookWorker::signalChanged, this, &LogbookController::askServices);
    connect(mpWorker.get(), &LogbookWorker::signalPutAside, this, [this](const QString& error) {
        tellPutAside(error);
        takeCard(true); // what is at hand is kept again
    });
    connect(mpWorker.get(), &LogbookWorker::signalFound, this, [this](bool isThere) {
        if (!std::exchange(mIsThere, isThere) && isThere) // a note makes one, too
            takeCard();
    });
    connect(&mIntake, &LogbookIntake::signalPutAside, this, &LogbookController::tellPutAside);
    connect(mpExport, &LogbookExport::signalWritten, this, [this](const QString& path) {
        mpDialog->tellWritten(path);
        Q_EMIT signalWritten(path);
    });
    // When the window has shown the card.
    connect(&mParts.cards, &CardController::signalFolderChanged, this, &LogbookController::slotCard, Qt::QueuedConnection);
    connect(&mParts.cards, &CardController::signalCancelled, this, [this] { mWanted.reset(); });
    connect(&mParts.record, &RecordSession::recordChanged, this, &LogbookController::slotRecord);
    new NormalRangeController(session, mParts.record, *mpWorker, this);
}

LogbookController::~LogbookController()
{
    mIntake.cancel();
    mpWorker.reset(); // before those who wait for its answers
}

void LogbookController::createWindow()
{
    mpOptions = new LogbookOptions(mSession, mStore);
    mpDialog = std::make_unique<DialogLogbook>(*mpWorker, mpOptions);
    mpDialog->setAttribute(Qt::WA_QuitOnClose, false); // it stands beside the main window, not above it
    connect(mpOptions, &LogbookOptions::signalChanged, this, [this] {
        mpBar->setVisible(Settings::kLogbook.get(mSession.property) == eLogbookNotAsked && mpBar->isVisible());
        takeCard();
    });
    mpDialog->setContext(mSession.profile.context());
    mpDialog->setHiddenColumns(Settings::kLogbookHidden.text(mSession.property).split(','));
    connect(&mParts.record, &RecordSession::decodingChanged, mpDialog.get(), [this] { mpDialog->setContext(mSession.profile.context()); });
    connect(mpDialog.get(), &DialogLogbook::signalHiddenColumns, this, [this](const QStringList& keys) {
        Settings::kLogbookHidden.set(mSession.property, keys.join(','));
        mSession.property.writeXmlFile();
    });
    connect(mpDialog.get(), &DialogLogbook::signalOpen, this, &LogbookController::open);
    connect(mpDialog.get(), &DialogLogbook::signalExportFlights, this,
            [this](const std::vector<int64_t>& flights, const QString& title, const QString& totals) {
                mpExport->exportFlights(mpDialog.get(), flights, {title, totals});
            });
    connect(mpDialog.get(), &DialogLogbook::signalExportNotes, this,
            [this](const std::vector<LogbookNote>& notes) { mpExport->exportNotes(mpDialog.get(), notes); });
}

void LogbookController::show()
{
    if (!mpDialog)
        createWindow();
    mpOptions->fill();
    mpDialog->setAllowed(isAllowed());
    mpDialog->show();
    tellProblems();
    mpDialog->raise();
    mpDialog->activateWindow();
}

/// The demo card is nobody's flight.
bool LogbookController::isDemo() const
{
    return QFileInfo(mSession.container.path()).absoluteFilePath() == QFileInfo(mDataPath + "/DemoCard").absoluteFilePath();
}

void LogbookController::slotCard()
{
    mParts.overview.view().setServices({});
    const bool hasCard = !mSession.container.recordCycles().empty() && !isDemo();
    mpBar->setVisible(hasCard && !mParts.isReduced && Settings::kLogbook.get(mSession.property) == eLogbookNotAsked);
    takeCard();
    askServices();
    if (mWanted && mWanted->folder == mSession.container.path())
        showWanted();
}

void LogbookController::slotAnswer(bool isWanted)
{
    mParts.panels.pages().currentWidget()->setFocus(); // it would go to the next text field, which takes keys that are meant for the window
    mpBar->hide();
    Settings::kLogbook.set(mSession.property, isWanted ? eLogbookYes : eLogbookNo);
    mSession.property.writeXmlFile();
    if (mpOptions)
        mpOptions->fill();
    takeCard();
}

bool LogbookController::isAllowed() const
{
    return Settings::kLogbook.get(mSession.property) == eLogbookYes;
}

void LogbookController::takeCard(bool isAgain)
{
    if (mpDialog)
        mpDialog->setAllowed(isAllowed());
    const QString folder = mSession.container.path();
    if (isAllowed() && QFileInfo(folder).isDir() && !mSession.container.recordCycles().empty() && !isDemo())
        mIntake.take(folder, isAgain);
}

void LogbookController::tellPutAside(const QString& error)
{
    mParts.notices.tell(tr("The logbook was damaged.\n%1").arg(error));
    mPutAside = error;
    tellProblems();
}

void LogbookController::tellProblems()
{
    QStringList problems{mPutAside, mProblem};
    problems.removeAll(QString());
    if (mpDialog)
        mpDialog->tellLasting(problems.join('\n'));
}

void LogbookController::slotTaken(const QString& folder, const QString& error, const QString& unarchived)
{
    const QString card = QDir::toNativeSeparators(folder) + "\n";
    QString reason = error.section('\n', 0, 0);
    reason.replace(mStore, QFileInfo(mStore).fileName());
    const QString unkept = error.isEmpty() ? QString() : tr("Card not in the logbook: %1");
    const QString uncopied = unarchived.isEmpty() ? QString() : tr("Card not in the archive: %1");
    mParts.notices.setProblem(Notices::eLogbook, unkept.isEmpty() ? unkept : unkept.arg(reason), card + error);
    mParts.notices.setProblem(Notices::eArchive, uncopied.isEmpty() ? uncopied : uncopied.arg(unarchived.section(": ", -1)), card + unarchived);
    QStringList problems{unkept.isEmpty() ? unkept : unkept.arg(error), uncopied.isEmpty() ? uncopied : uncopied.arg(unarchived)};
    problems.removeAll(QString());
    mProblem = problems.join('\n');
    tellProblems();
    mpWorker->look();
}

/// What is due for the engines of the card that is shown.
void LogbookController::askServices()
{
    std::set<std::string> ids;
    for (const auto& [number, cycle] : mSession.container.recordCycles())
        ids.insert(cycleEngine(mSession.container, cycle).id);
    if (ids.empty() || !QFileInfo::exists(mStore))
        return;
    mpWorker->ask(
        [ids](LogbookReader& reader) {
            QStringList texts;
            std::set<std::string> wanted;
            for (const std::string& id : ids)
                wanted.insert(reader.engineOf(id));
            for (const LogbookEngine& engine : reader.engines()) {
                if (!wanted.contains(engine.id))
                    continue;
                std::vector<Service> services = reader.services(engine.id);
                sortByUrgency(services, engine.hours(), QDate::currentDate(), engine.uncounted());
                for (const Service& service : services) {
                    const ServiceDue due = dueOf(service, engine.hours(), QDate::currentDate(), engine.uncounted());
                    if (const QString text = LogbookTexts::warning(service, due); !text.isEmpty())
                        texts.append(wanted.size() > 1 ? LogbookTexts::engine(engine.id, engine.aircraft) + ": " + text : text);
                }
            }
            return texts;
        },
        [this, path = mSession.container.path()](const QStringList& texts) {
            if (path == mSession.container.path())
                mParts.overview.view().setServices(texts);
        });
}

CardReviewer::Supplement LogbookController::supplement() const
{
    return [path = encodeFileName(mStore)](CycleOverview& overview, const CardContainer& card) {
        if (!QFileInfo::exists(decodeFileName(path)))
            return;
        LogbookReader logbook(path);
        StoreReader store = logbook.trends();
        const CycleHead head = cycleHead(card, overview.number, card.recordCycles().at(overview.number));
        if (head.id.empty())
            return;
        store.countOnce(ShownRecording{head, overview.dateTime, {overview.startTime, overview.endTime}});
        for (const LogbookNote& note : logbook.notes(head.id))
            overview.notes.push_back(note.note);
        if (!overview.flights.empty())
            overview.unusual = unusualTexts(store, head, overview, card.values().context());
        if (!store.error().empty()) // judged by a part of the flights
            overview.unusual.clear();
    };
}

void LogbookController::open(const QString& cycleId, int flight, double time)
{
    struct Found {
        std::optional<CyclePlace> place;
        int flight = 0;
        std::vector<std::string> folders; ///< where it was
    };
    const std::string archive = Settings::kArchiveDir.get(mSession.property);
    mpWorker->ask(
        [wanted = CycleFlight{cycleId.toStdString(), flight}, archive](LogbookReader& reader) {
            const Console silent([](std::string_view) {}, [](std::string_view) {});
            Found found;
            for (const CycleFlight& same : reader.sameFlights(wanted)) {
                std::vector<std::string> folders = reader.foldersOf(same.cycleId);
                if (!archive.empty())
                    std::ranges::move(CardArchive(archive, silent).foldersOf(same.cycleId), std::back_inserter(folders));
                found.place = findCycle(folders, same.cycleId, silent, nullProgress());
                found.flight = same.flight;
                std::ranges::move(folders, std::back_inserter(found.folders));
                if (found.place)
                    break;
            }
            return found;
        },
        [this, time](const Found& found) {
            if (found.place)
                return openAt(*found.place, found.flight, time);
            const QString where = found.folders.empty() ? QString() : "\n" + QDir::toNativeSeparators(decodeFileName(found.folders.front()));
            mpDialog->tell(tr("The card of this recording is not at hand.") + where);
        });
}

void LogbookController::openAt(const CyclePlace& place, int flight, double time)
{
    mpDialog->tell({});
    mWanted = {place.folder, place.cycle, flight, time};
    if (mSession.container.path() == place.folder)
        showWanted();
    else
        mParts.cards.openFolder(place.folder);
    mpWindow->raise();
    mpWindow->activateWindow();
}

void LogbookController::showWanted()
{
    const Wanted wanted = *std::exchange(mWanted, {});
    mWantedTime = std::isnan(wanted.time) ? std::nullopt : std::optional(wanted.time);
    mParts.browser.choose(wanted.cycle, wanted.flight - 1);
    mParts.cards.loadCycle(wanted.cycle, wanted.flight - 1);
}

void LogbookController::slotRecord()
{
    if (!mWantedTime || !mParts.record.record())
        return;
    // When the views have the record: until then they begin with its start.
    QMetaObject::invokeMethod(this, [this, time = *std::exchange(mWantedTime, {})] { mParts.record.setTime(time); }, Qt::QueuedConnection);
}

} // namespace ZARN
