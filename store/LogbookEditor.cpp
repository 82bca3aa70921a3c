#include "store/LogbookEditor.h"

#include "store/StoreRescue.h"
#include "store/StoreSalvage.h"
#include "store/StoreSchema.h"
#include "store/StoreText.h"

#include <QDateTime>
#include <QRandomGenerator>

namespace ZARN {

namespace {

FieldValue whole(const std::optional<int>& number)
{
    return number ? FieldValue(int64_t{*number}) : FieldValue();
}

/// A new one is never one that another program had given and taken back: what it stood for there would be overwritten here.
int64_t idOf(int64_t id)
{
    return id > 0 ? id : QDateTime::currentMSecsSinceEpoch() * 1000 + QRandomGenerator::global()->bounded(1000);
}

} // namespace

LogbookEditor::LogbookEditor(const std::string& path) : mDatabase(path, Database::eReadWrite)
{
    if (mDatabase.isGood())
        StoreSchema::prepare(mDatabase);
    finishFailure();
}

void LogbookEditor::finishFailure()
{
    mError = mDatabase.error();
    if (mDatabase.failure() != Database::eDamaged)
        return;
    mDatabase.close();
    const StoreRescue rescue = rescueStore(mDatabase.path(), mError);
    mError = rescue.error;
    mIsDamaged = rescue.isDamaged;
}

bool LogbookEditor::write(const std::function<void()>& work)
{
    if (!mError.empty())
        return false;
    if (mDatabase.isGood() && !mDatabase.isInPlace())
        mDatabase.fail(tr("the store was removed or replaced"));
    if (mDatabase.isGood()) {
        Transaction transaction(mDatabase);
        if (mDatabase.isGood())
            work();
        transaction.commit();
    }
    finishFailure();
    return mError.empty();
}

bool LogbookEditor::saveNote(const std::string& cycle, const CycleNote& note)
{
    return write([&] {
        mDatabase.prepared("DELETE FROM note WHERE note_id = ?").with({note.id}).run();
        if (note.text.trimmed().isEmpty())
            return;
        mDatabase.prepared("INSERT INTO note (note_id, cycle_id, time, text, written) VALUES (?, ?, ?, ?, ?)")
            .with({idOf(note.id), cycle, note.time, note.text.toStdString(), storeDate(note.written)})
            .run();
    });
}

bool LogbookEditor::saveService(const Service& service)
{
    return write([&] {
        mDatabase
            .prepared("INSERT OR REPLACE INTO service (service_id, engine_id, name, every_hours, every_months, done_hours, done_date, note) "
                      "VALUES (?, ?, ?, ?, ?, ?, ?, ?)")
            .with({idOf(service.id), service.engine, service.name.toStdString(), realOf(service.everyHours), whole(service.everyMonths),
                   realOf(service.doneHours), textOrNothing(service.doneDate.toString(Qt::ISODate).toStdString()),
                   textOrNothing(service.note.toStdString())})
            .run();
    });
}

bool LogbookEditor::removeService(int64_t id)
{
    return write([&] { mDatabase.prepared("DELETE FROM service WHERE service_id = ?").with({id}).run(); });
}

bool LogbookEditor::nameAircraft(const std::string& engine, const QString& name)
{
    return write([&] {
        mDatabase.prepared("DELETE FROM aircraft WHERE engine_id = ?").with({engine}).run();
        if (!name.trimmed().isEmpty())
            mDatabase.prepared("INSERT INTO aircraft (engine_id, name) VALUES (?, ?)").with({engine, name.trimmed().toStdString()}).run();
    });
}

bool LogbookEditor::setHoursBefore(const std::string& engine, std::optional<double> hours)
{
    return write([&] {
        mDatabase.prepared("DELETE FROM reading WHERE engine_id = ? AND source = 'typed' AND date IS NULL").with({engine}).run();
        mDatabase.prepared("DELETE FROM problem WHERE file = ? AND card_id = (SELECT card_id FROM card WHERE path = ?)").with({engine, kLossPath}).run();
        if (hours)
            mDatabase.prepared("INSERT INTO reading (engine_id, hours, source) VALUES (?, ?, 'typed')").with({engine, *hours}).run();
    });
}

bool LogbookEditor::merge(const std::string& engine, const std::string& into)
{
    return write([&] {
        const Row both{engine, into};
        mDatabase.prepared("INSERT OR IGNORE INTO merged_cycle SELECT cycle_id, engine_id FROM cycle WHERE engine_id = ?").with({engine}).run();
        mDatabase.prepared("UPDATE cycle SET engine_id = ?2 WHERE engine_id = ?1").with(both).run();
        mDatabase.prepared("UPDATE engine_merge SET merged_into = ?2 WHERE merged_into = ?1").with(both).run();
        mDatabase.prepared("INSERT INTO engine_merge (engine_id, merged_into) VALUES (?, ?)").with(both).run();
    });
}

bool LogbookEditor::separate(const std::string& engine)
{
    return write([&] {
        mDatabase.prepared("DELETE FROM engine_merge WHERE engine_id = ?").with({engine}).run();
        mDatabase.prepared("UPDATE cycle SET engine_id = ?1 WHERE cycle_id IN (SELECT cycle_id FROM merged_cycle WHERE engine_id = ?1)").with({engine}).run();
        mDatabase.prepared("DELETE FROM merged_cycle WHERE engine_id = ?").with({engine}).run();
    });
}

} // namespace ZARN
