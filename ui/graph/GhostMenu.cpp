#include "ui/graph/GhostMenu.h"

#include "app/Console.h"
#include "app/DateText.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "profile/Profile.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace ZARN {

namespace {

QString cycleText(uint32_t number, const RecordCycle& cycle)
{
    const QString name = GhostMenu::tr("Cycle %1").arg(number);
    const QDateTime powerUp = PowerUp::of(cycle);
    return powerUp.isValid() ? name + "  " + dateTimeText(powerUp) : name;
}

} // namespace

GhostMenu::GhostMenu(const Session& session, RecordGraph& graph, QWidget* pParent)
    : QMenu(tr("Compare With"), pParent), mSession(session), mGraph(graph)
{
    addFlights();
    addCycles();
    addAction(tr("Another Card..."), this, &GhostMenu::askCard);
    addNormal();
    if (!mGraph.ghost().cycle())
        return;
    addSeparator();
    addAlignment();
    addAction(tr("Nothing"), this, [this] { mGraph.ghost().set(nullptr, 0); });
}

void GhostMenu::addFlights()
{
    const CardContainer& card = mSession.container;
    const RecordCycle* pCycle = card.loadedCycle();
    const int selected = card.selectedFlightNumber();
    const auto flights = pCycle ? static_cast<int>(pCycle->flights.size()) : 0;
    for (int flight = selected > 0 ? 1 : 2; flight <= flights; ++flight) { // all of the cycle is laid by its first one
        if (flight == selected)
            continue;
        const QString name = tr("Flight %1").arg(flight);
        addAction(name, this, [this, flight, name] {
            mGraph.ghost().set(std::make_shared<const GhostCycle>(mSession.container.loaded().withFlight(0), name, flight), flight);
        });
    }
}

void GhostMenu::addCycles()
{
    const CardContainer& card = mSession.container;
    for (const auto& [number, cycle] : card.recordCycles()) {
        if (card.loadedCycleNumber() == number)
            continue;
        addAction(cycleText(number, cycle), this, [this, number] {
            Q_EMIT signalWish({mSession.container.path(), number, tr("Cycle %1").arg(number)});
        });
    }
    addSeparator();
}

void GhostMenu::addAlignment()
{
    const auto flights = static_cast<int>(mGraph.ghost().cycle()->takeOffs.size());
    for (int flight = 1; flight <= flights; ++flight) {
        const QString text = flights == 1 ? tr("Align Take-offs") : tr("Align to the Take-off of its Flight %1").arg(flight);
        addAction(text, this, [this, flight] { mGraph.ghost().alignTakeOff(flight); });
    }
    if (mGraph.ghost().cycle()->engineStart)
        addAction(tr("Align Engine Starts"), this, [this] { mGraph.ghost().alignEngineStart(); });
    addAction(tr("Drag with the Alt key to align by hand"))->setEnabled(false);
}

/// Of this engine, by the logbook.
void GhostMenu::addNormal()
{
    addSeparator();
    const bool isKnown = mGraph.ghost().normal().isKnown();
    QAction* pAction = addAction(isKnown ? tr("Earlier Flights of This Engine, 5 to 95 %")
                                         : tr("Earlier Flights of This Engine: Fewer than 10 in the Logbook"));
    pAction->setCheckable(true);
    pAction->setEnabled(isKnown);
    pAction->setChecked(isKnown && mGraph.ghost().normal().isOn());
    connect(pAction, &QAction::toggled, this, [this](bool on) { mGraph.ghost().normal().setOn(on); });
}

void GhostMenu::askCard()
{
    const QString path = QFileDialog::getExistingDirectory(parentWidget(), tr("Compare With"), Settings::kLastPath.text(mSession.property),
                                                           QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!path.isEmpty())
        askCycle(path);
}

void GhostMenu::askCycle(const QString& path)
{
    const Console silent([](std::string_view) {}, [](std::string_view) {});
    const DecodingContext context = mSession.profile.context();
    CardContainer card(silent, context, nullProgress());
    if (!card.readContainer(path) || card.recordCycles().empty()) {
        QMessageBox::warning(parentWidget(), tr("ZARN Warning"), tr("No power cycles were found there."));
        return;
    }
    QStringList texts;
    std::vector<uint32_t> numbers;
    for (const auto& [number, cycle] : card.recordCycles()) {
        texts << cycleText(number, cycle);
        numbers.push_back(number);
    }
    bool isChosen = false;
    const QString chosen = QInputDialog::getItem(parentWidget(), tr("Compare With"), tr("Power cycle of %1 :").arg(card.name()), texts,
                                                 static_cast<int>(texts.size()) - 1, false, &isChosen);
    if (isChosen)
        Q_EMIT signalWish({path, numbers[static_cast<std::size_t>(texts.indexOf(chosen))], card.name() + "  " + chosen});
}

} // namespace ZARN
