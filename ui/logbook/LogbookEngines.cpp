#include "ui/logbook/LogbookEngines.h"

#include "ui/logbook/DialogService.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr double kMostHours = 100000.0;

QTableWidget* createTable(const QString& name, const QStringList& titles)
{
    auto* pTable = new QTableWidget(0, static_cast<int>(titles.size()));
    pTable->setAccessibleName(name);
    pTable->setHorizontalHeaderLabels(titles);
    pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    pTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    pTable->setTabKeyNavigation(false);
    pTable->setShowGrid(false);
    pTable->setWordWrap(false);
    pTable->verticalHeader()->hide();
    pTable->horizontalHeader()->setHighlightSections(false);
    pTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pTable->horizontalHeader()->setStretchLastSection(true);
    return pTable;
}

void setRow(QTableWidget& table, int row, const QStringList& texts, bool isBold = false)
{
    for (int column = 0; column < static_cast<int>(texts.size()); ++column) {
        auto* pItem = new QTableWidgetItem(texts[column]);
        QFont font = pItem->font();
        font.setBold(isBold);
        pItem->setFont(font);
        pItem->setToolTip("<span>" + texts[column].toHtmlEscaped() + "</span>"); // a narrow column shows its beginning
        table.setItem(row, column, pItem);
    }
}

} // namespace

LogbookEngines::LogbookEngines(LogbookWorker& worker, QWidget* pParent)
    : QWidget(pParent), mWorker(worker),
      mpEngines(createTable(tr("Engines"), {tr("Aircraft or engine"), tr("Type"), tr("Flights"), tr("Engine hours"), tr("Unit's counter")})),
      mpHours(new QLabel), mpServices(createTable(tr("Services"), {tr("Service"), tr("Every"), tr("Last done"), tr("Due"), tr("Remark")}))
{
    createEngineTable();
    createServiceTable();
    mpHours->setTextFormat(Qt::PlainText);
    mpHours->setWordWrap(true);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpEngines, 2);
    pLayout->addWidget(createEngineButtons());
    pLayout->addWidget(mpHours);
    pLayout->addWidget(mpServices, 3);
    pLayout->addWidget(createServiceButtons());
    update();
}

void LogbookEngines::createEngineTable()
{
    const int letter = fontMetrics().horizontalAdvance('x');
    for (const auto& [column, letters] : {std::pair(0, 44), {1, 18}, {2, 11}, {3, 18}})
        mpEngines->setColumnWidth(column, letters * letter);
    connect(mpEngines, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0 && row < static_cast<int>(mEngines.size()) && mEngines[static_cast<std::size_t>(row)].id != mEngine)
            Q_EMIT signalEngine(QString::fromStdString(mEngines[static_cast<std::size_t>(row)].id));
    });
}

void LogbookEngines::createServiceTable()
{
    const int letter = fontMetrics().horizontalAdvance('x');
    for (const auto& [column, letters] : {std::pair(0, 22), {1, 22}, {2, 24}, {3, 52}})
        mpServices->setColumnWidth(column, letters * letter); // until there are some
    connect(mpServices, &QTableWidget::itemSelectionChanged, this, &LogbookEngines::update);
    connect(mpServices, &QTableWidget::cellActivated, this, [this] { changeService(); });
}

QWidget* LogbookEngines::createEngineButtons()
{
    auto* pButtons = new QWidget;
    auto* pRow = new QHBoxLayout(pButtons);
    pRow->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString& text, void (LogbookEngines::*pSlot)()) {
        auto* pButton = new QPushButton(text);
        connect(pButton, &QPushButton::clicked, this, pSlot);
        pRow->addWidget(pButton);
        return pButton;
    };
    mOfEngine = {add(tr("Aircraft ..."), &LogbookEngines::askAircraft), add(tr("Hours before ..."), &LogbookEngines::askHours)};
    mpMerge = add(tr("Same engine as ..."), &LogbookEngines::askMerge);
    mpMerge->setToolTip(tr("An engine whose unit tells no serial number may be one that is here already"));
    mpSeparate = add(tr("Separate ..."), &LogbookEngines::askSeparate);
    mpSeparate->setToolTip(tr("Takes back that engines are the same"));
    pRow->addStretch();
    return pButtons;
}

QWidget* LogbookEngines::createServiceButtons()
{
    auto* pButtons = new QWidget;
    auto* pRow = new QHBoxLayout(pButtons);
    pRow->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString& text, const std::function<void()>& act) {
        auto* pButton = new QPushButton(text);
        connect(pButton, &QPushButton::clicked, this, act);
        pRow->addWidget(pButton);
        return pButton;
    };
    mOfEngine.push_back(add(tr("New service ..."), [this] {
        Service service;
        service.engine = mEngine;
        askService(service);
    }));
    mOfService = {add(tr("Change ..."), [this] { changeService(); }), add(tr("Done now"), [this] { noteDone(); }),
                  add(tr("Delete"), [this] { removeService(); })};
    pRow->addStretch();
    return pButtons;
}

const LogbookEngine* LogbookEngines::engine() const
{
    const auto found = std::ranges::find(mEngines, mEngine, &LogbookEngine::id);
    return found == mEngines.end() ? nullptr : &*found;
}

const Service* LogbookEngines::service() const
{
    const int row = mpServices->selectedItems().isEmpty() ? -1 : mpServices->currentRow();
    return row < 0 || row >= static_cast<int>(mServices.size()) ? nullptr : &mServices[static_cast<std::size_t>(row)];
}

void LogbookEngines::setEngines(std::vector<LogbookEngine> engines)
{
    mEngines = std::move(engines);
    fillEngines();
    readServices();
}

void LogbookEngines::setEngine(const std::string& engine)
{
    mEngine = engine;
    fillEngines();
    readServices();
}

void LogbookEngines::fillEngines()
{
    const QSignalBlocker blocker(mpEngines);
    mpEngines->setRowCount(static_cast<int>(mEngines.size()));
    int current = -1;
    for (int row = 0; row < static_cast<int>(mEngines.size()); ++row) {
        const LogbookEngine& engine = mEngines[static_cast<std::size_t>(row)];
        QString name = LogbookTexts::engine(engine.id, engine.aircraft);
        for (const LogbookEngine& merged : engine.merged)
            name += " + " + LogbookTexts::engine(merged.id, merged.aircraft);
        setRow(*mpEngines, row, {name, QString::fromStdString(engine.type), QLocale().toString(static_cast<qulonglong>(engine.flights)),
                                 LogbookTexts::hours(engine.hours()) + " h", engine.counter ? LogbookTexts::hours(*engine.counter) + " h" : QStringLiteral("-")});
        current = engine.id == mEngine ? row : current;
    }
    for (int column = 0; column < mpEngines->columnCount() - 1 && !mEngines.empty(); ++column)
        mpEngines->resizeColumnToContents(column);
    mpEngines->setCurrentCell(current, 0);
    if (current < 0)
        mpEngines->clearSelection();
}

void LogbookEngines::readServices()
{
    ++mAsked;
    if (!engine())
        return fillServices({});
    mWorker.ask([engine = mEngine](LogbookReader& reader) { return reader.services(engine); },
                [this, asked = mAsked](std::vector<Service> services) {
                    if (asked == mAsked)
                        fillServices(std::move(services));
                });
}

void LogbookEngines::fillServices(std::vector<Service> services)
{
    const Service* pBefore = service();
    const int64_t chosen = pBefore ? pBefore->id : 0;
    const LogbookEngine* pEngine = engine();
    const std::optional<double> hours = pEngine ? std::optional(pEngine->hours()) : std::nullopt;
    const QDate today = QDate::currentDate();
    const double uncounted = pEngine ? pEngine->uncounted() : 0.0;
    sortByUrgency(services, hours, today, uncounted);
    mServices = std::move(services);
    mpServices->setRowCount(static_cast<int>(mServices.size()));
    mpServices->clearSelection();
    for (int row = 0; row < static_cast<int>(mServices.size()); ++row) {
        const Service& service = mServices[static_cast<std::size_t>(row)];
        const ServiceDue due = dueOf(service, hours, today, uncounted);
        QStringList done;
        if (service.doneHours)
            done.append(LogbookTexts::hours(*service.doneHours) + " h");
        if (service.doneDate.isValid())
            done.append(LogbookTexts::date(service.doneDate));
        const QString state = due.state == ServiceDue::eOverdue ? tr("overdue: %1") : due.state == ServiceDue::eSoon ? tr("soon: %1") : QStringLiteral("%1");
        setRow(*mpServices, row, {service.name, LogbookTexts::interval(service), done.isEmpty() ? tr("never") : done.join(", "),
                                  state.arg(LogbookTexts::due(service, due)), service.note}, due.state >= ServiceDue::eInDoubt);
        if (service.id == chosen)
            mpServices->selectRow(row);
    }
    for (int column = 0; column < mpServices->columnCount() - 1 && !mServices.empty(); ++column)
        mpServices->resizeColumnToContents(column);
    update();
}

void LogbookEngines::update()
{
    const LogbookEngine* pEngine = engine();
    mpHours->setText(pEngine ? LogbookTexts::engine(pEngine->id, pEngine->aircraft) + ": " + LogbookTexts::engineHours(*pEngine)
                             : tr("Choose an engine to see its hours and services."));
    for (QPushButton* pButton : mOfEngine)
        pButton->setEnabled(pEngine != nullptr);
    for (QPushButton* pButton : mOfService)
        pButton->setEnabled(service() != nullptr);
    mpMerge->setEnabled(pEngine && !pEngine->hasSerial && mEngines.size() > 1);
    mpSeparate->setEnabled(pEngine && !pEngine->merged.empty());
}

void LogbookEngines::edit(const std::function<void(LogbookEditor&)>& work)
{
    mWorker.edit(work, [this](const QString& error) {
        if (!error.isEmpty())
            Q_EMIT signalFailed(error);
    });
}

// While one of these asks, another instance may write, and the engines be others.

void LogbookEngines::askAircraft()
{
    const std::string engine = mEngine;
    bool isGiven = false;
    const QString name =
        QInputDialog::getText(this, tr("Aircraft"), tr("The aircraft that this engine is in, for example its registration:"),
                              QLineEdit::Normal, QString::fromStdString(this->engine()->aircraft), &isGiven);
    if (isGiven)
        edit([engine, name](LogbookEditor& editor) { editor.nameAircraft(engine, name); });
}

void LogbookEngines::askHours()
{
    const std::string engine = mEngine;
    bool isGiven = false;
    const double hours = QInputDialog::getDouble(this, tr("Engine hours"), tr("Hours that the engine ran before its first recording:"),
                                                 this->engine()->hoursBefore.value_or(0.0), 0.0, kMostHours, 1, &isGiven);
    if (isGiven)
        edit([engine, hours](LogbookEditor& editor) { editor.setHoursBefore(engine, hours); });
}

void LogbookEngines::askMerge()
{
    const std::string engine = mEngine;
    QStringList names;
    std::vector<std::string> ids;
    for (const LogbookEngine& other : mEngines) {
        if (other.id == mEngine)
            continue;
        names.append(LogbookTexts::engine(other.id, other.aircraft));
        ids.push_back(other.id);
    }
    bool isGiven = false;
    const QString name = QInputDialog::getItem(this, tr("Same engine"),
                                               tr("%1 is the same engine as:").arg(LogbookTexts::engine(mEngine, this->engine()->aircraft)),
                                               names, 0, false, &isGiven);
    if (!isGiven)
        return;
    const std::string into = ids[static_cast<std::size_t>(names.indexOf(name))];
    edit([engine, into](LogbookEditor& editor) { editor.merge(engine, into); });
    Q_EMIT signalEngine(QString::fromStdString(into));
}

void LogbookEngines::askSeparate()
{
    QStringList names;
    const std::vector<LogbookEngine> all = engine()->merged;
    for (const LogbookEngine& merged : all)
        names.append(LogbookTexts::engine(merged.id, merged.aircraft));
    bool isGiven = false;
    const QString name = QInputDialog::getItem(this, tr("Separate engines"), tr("An engine of its own again:"), names, 0, false, &isGiven);
    if (isGiven)
        edit([merged = all[static_cast<std::size_t>(names.indexOf(name))].id](LogbookEditor& editor) { editor.separate(merged); });
}

/// @param hint what there is to say of it first
void LogbookEngines::askService(const Service& service, const QString& hint)
{
    const LogbookEngine* pEngine = engine();
    DialogService dialog(service, pEngine ? pEngine->hours() : 0.0, hint, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    mWorker.edit([kept = dialog.service()](LogbookEditor& editor) { editor.saveService(kept); },
                 [this, kept = dialog.service()](const QString& error) {
                     if (!error.isEmpty())
                         askService(kept, DialogService::notKept(error));
                 });
}

/// A service that was done at hours of an engine that is this one now: what they are here is for people to say.
void LogbookEngines::changeService()
{
    Service changed = *service();
    const LogbookEngine& present = *engine();
    const auto other = std::ranges::find(present.merged, changed.engine, &LogbookEngine::id);
    if (!std::exchange(changed.isOfOtherCount, false) || other == present.merged.end())
        return askService(changed);
    const double before = *changed.doneHours;
    changed.engine = mEngine;
    changed.doneHours = std::max(0.0, present.hours() - (other->hours() - before));
    askService(changed, tr("Done at %1 h of %2. That is %3 h of this engine if nothing else of it was recorded since; if not, correct it.")
                            .arg(LogbookTexts::hours(before), LogbookTexts::engine(other->id, other->aircraft), LogbookTexts::hours(*changed.doneHours)));
}

void LogbookEngines::noteDone()
{
    Service done = *service();
    done.doneHours = engine()->hours();
    done.doneDate = QDate::currentDate();
    if (std::exchange(done.isOfOtherCount, false))
        done.engine = mEngine;
    askService(done);
}

void LogbookEngines::removeService()
{
    const Service& chosen = *service();
    QMessageBox box(QMessageBox::Question, tr("Delete service"), tr("Delete the service \"%1\"?").arg(chosen.name), QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    if (box.exec() == QMessageBox::Yes)
        edit([id = chosen.id](LogbookEditor& editor) { editor.removeService(id); });
}

} // namespace ZARN
