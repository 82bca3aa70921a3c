#include "ui/main/NoteController.h"

#include "card/CardContainer.h"
#include "project/RecordSession.h"
#include "project/TimeReference.h"
#include "store/CycleIdentity.h"
#include "ui/logbook/NoteDialog.h"
#include "ui/logbook/model/LogbookWorker.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainCommands.h"
#include "ui/main/Notices.h"

#include <QAction>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kSameMoment = 0.5; // seconds: a note that near is the one that is meant

} // namespace

NoteController::NoteController(const Session& session, RecordSession& record, LogbookWorker& worker, MainCommands& commands, Notices& notices,
                               QWidget* pWindow)
    : QObject(pWindow), mSession(session), mRecord(record), mWorker(worker), mCommands(commands), mNotices(notices), mpWindow(pWindow)
{
    commands.action(eActionNote)->setEnabled(false);
    commands.handle(eActionNote, [this](QAction&) { write(); });
    connect(&mRecord, &RecordSession::recordChanged, this, &NoteController::slotRecord);
    connect(&mWorker, &LogbookWorker::signalChanged, this, &NoteController::read);
}

/// Only a whole power cycle has an identity that any copy of it has too.
bool NoteController::canWrite() const
{
    return mRecord.record() && !mCycle.empty();
}

void NoteController::slotRecord()
{
    if (std::exchange(mShown, mRecord.version().record) == mRecord.version().record)
        return;
    mCycle.clear();
    mRecord.setNotes({});
    mCommands.action(eActionNote)->setEnabled(false);
    const RecordCycle* pCycle = mRecord.record() ? mSession.container.loadedCycle() : nullptr;
    if (!pCycle || pCycle->files.empty())
        return; // what no file holds has no identity yet
    // A slow card has to be read for it.
    const auto pId = std::make_shared<std::string>();
    std::vector<std::string> paths = cyclePaths(*pCycle);
    mWorker.run([pId, paths] { *pId = cycleIdentity(paths); },
                [this, pId, shown = mShown] {
                    if (shown != mShown)
                        return;
                    mCycle = *pId;
                    mCommands.action(eActionNote)->setEnabled(canWrite());
                    read();
                });
}

void NoteController::read()
{
    if (mCycle.empty() || !QFileInfo::exists(mWorker.path()))
        return;
    mWorker.ask([cycle = mCycle](LogbookReader& reader) { return reader.notes(cycle); },
                [this, asked = ++mAsked](const std::vector<LogbookNote>& found) {
                    if (asked != mAsked)
                        return;
                    std::vector<CycleNote> notes;
                    for (const LogbookNote& note : found)
                        notes.push_back(note.note);
                    mRecord.setNotes(std::move(notes));
                });
}

void NoteController::write()
{
    if (!canWrite())
        return;
    CycleNote note;
    note.time = mRecord.viewTime();
    for (const CycleNote& other : mRecord.notes()) {
        if (std::abs(other.time - note.time) < kSameMoment)
            note = other;
    }
    const QString label = (note.id > 0 ? tr("Note at %1; without a text it is removed:") : tr("Note at %1:"))
                              .arg(TimeReference::of(mSession.property, mSession.container).textAt(note.time));
    const std::string cycle = mCycle;
    const std::optional<QString> text = NoteDialog::ask(mpWindow, label, note.text);
    if (!text || text->trimmed() == note.text || cycle != mCycle)
        return;
    note.text = text->trimmed();
    note.written = QDateTime::currentDateTime();
    keep(note);
}

void NoteController::keep(const CycleNote& note)
{
    mWorker.edit([cycle = mCycle, note](LogbookEditor& editor) { editor.saveNote(cycle, note); },
                 [this, note](const QString& error) {
                     if (!error.isEmpty())
                         mNotices.tell(tr("The note could not be kept:\n%1\n\n%2").arg(error, note.text));
                     Q_EMIT signalChanged();
                 });
}

} // namespace ZARN
