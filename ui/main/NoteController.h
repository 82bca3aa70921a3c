#pragma once

#include "card/CycleNote.h"
#include "project/Session.h"

#include <QObject>

class QWidget;

namespace ZARN {

class LogbookWorker;
class MainCommands;
class Notices;
class RecordSession;

/// Notes of the loaded cycle: writes one at the view time, keeps it in the store under the cycle's identity, and gives the views what is
/// kept, whatever copy of the card is open. Owned by the main window; what it is given outlives it.
class NoteController : public QObject {
    Q_OBJECT

public:
    NoteController(const Session& session, RecordSession& record, LogbookWorker& worker, MainCommands& commands, Notices& notices, QWidget* pWindow);

Q_SIGNALS:
    /// The notes of the cycle that is loaded are others than before: a note was written, changed or removed.
    void signalChanged();

private:
    void slotRecord();
    void read();
    void write();
    void keep(const CycleNote& note);
    [[nodiscard]] bool canWrite() const;

    Session mSession;
    RecordSession& mRecord;
    LogbookWorker& mWorker;
    MainCommands& mCommands;
    Notices& mNotices;
    QWidget* mpWindow;
    unsigned mShown = 0;  ///< version of the record whose notes are shown
    unsigned mAsked = 0;  ///< counts the questions to the store
    std::string mCycle;   ///< identity of the loaded cycle; empty: none, or not yet known
};

} // namespace ZARN
