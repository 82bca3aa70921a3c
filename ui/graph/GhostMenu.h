#pragma once

#include "project/Session.h"
#include "ui/graph/model/GhostLoader.h"
#include "ui/graph/model/RecordGraph.h"

#include <QMenu>

namespace ZARN {

/// The menu that chooses what the graph is compared with, and how the two are laid on each other.
class GhostMenu : public QMenu {
    Q_OBJECT

public:
    GhostMenu(const Session& session, RecordGraph& graph, QWidget* pParent);

Q_SIGNALS:
    void signalWish(const ZARN::GhostLoader::Wish& wish);

private:
    void addFlights();
    void addCycles();
    void addAlignment();
    void addNormal();
    void askCard();
    void askCycle(const QString& path);

    const Session mSession;
    RecordGraph& mGraph;
};

} // namespace ZARN
