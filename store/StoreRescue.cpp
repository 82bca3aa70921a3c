#include "store/StoreRescue.h"

#include "store/Database.h"
#include "store/StoreSalvage.h"
#include "store/StoreText.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <mutex>

#include <sys/stat.h>

namespace ZARN {

namespace {

bool isThere(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0;
}

QString translated(const char* text)
{
    return QCoreApplication::translate("ZARN::Store", text);
}

/// Moves a file, and those beside it that belong to it, to a name that nothing has.
std::string moveAside(const std::string& path)
{
    const std::string stem = path + ".damaged-" + QDateTime::currentDateTime().toString("yyyyMMdd-hhmmss").toStdString();
    std::string aside = stem;
    for (int number = 2; isThere(aside); ++number)
        aside = stem + "-" + std::to_string(number);
    bool isAside = std::rename(path.c_str(), aside.c_str()) == 0;
    for (const char* companion : {"-wal", "-shm"}) {
        if (isAside && isThere(path + companion))
            isAside = std::rename((path + companion).c_str(), (aside + companion).c_str()) == 0;
    }
    return isAside ? aside : std::string();
}

QString keptText(const StoreSalvage& kept)
{
    if (kept.isEmpty() && !kept.isWhole)
        return translated(QT_TRANSLATE_NOOP("ZARN::Store", "; nothing of it could be read: recordings come back when their cards are opened or scanned "
                                                           "again, and what was typed (notes, services, hours before) has to be typed again"));
    QString text = translated(QT_TRANSLATE_NOOP("ZARN::Store", "; a new one has what could be read of it: cycles %1, flights %2, notes %3, services %4, "
                                                               "typed hours %5"))
                       .arg(kept.cycles).arg(kept.flights).arg(kept.notes).arg(kept.services).arg(kept.readings);
    if (kept.lostCycles > 0)
        text += translated(QT_TRANSLATE_NOOP("ZARN::Store", "; cycles without their engine hours: %1")).arg(kept.lostCycles);
    if (!kept.isWhole)
        text += translated(QT_TRANSLATE_NOOP("ZARN::Store", "; what was in the damaged part is missing: recordings, and the engine hours in them, until "
                                                            "their cards are opened or scanned again, and what was typed"));
    return text;
}

/// Under another name, and what can be read of it in its place. Where no new one can be made it stays. @param error is added to
/// @return whether it was put aside
bool putAside(const std::string& path, std::string& error)
{
    const std::string fresh = path + ".new"; // until it is whole: nobody may write into it before
    std::remove(fresh.c_str());
    const StoreSalvage kept = salvageStore(path, fresh);
    const std::string aside = kept.error.empty() ? moveAside(path) : std::string();
    const bool isRenewed = !aside.empty() && std::rename(fresh.c_str(), path.c_str()) == 0;
    const std::string reason = kept.error.empty() ? std::strerror(errno) : kept.error;
    if (!aside.empty())
        error += translated(QT_TRANSLATE_NOOP("ZARN::Store", "; it was put aside as %1")).arg(QString::fromStdString(storeText(aside))).toStdString();
    if (isRenewed)
        error += keptText(kept).toStdString();
    else
        error += translated(QT_TRANSLATE_NOOP("ZARN::Store", "; what can be read of it could not be taken over into a new one: %1"))
                     .arg(QString::fromStdString(reason))
                     .toStdString();
    if (!isRenewed)
        std::remove(fresh.c_str());
    return !aside.empty();
}

/// The second look: what a medium did not give once is no damage.
bool isDamaged(const std::string& path)
{
    Database again(path, Database::eReadOnly);
    checkStoreContent(again);
    return again.failure() == Database::eDamaged;
}

} // namespace

void checkStoreContent(Database& database)
{
    Statement check(database, "PRAGMA quick_check(1)");
    if (check.next() && check.text(0) != "ok")
        database.failChecked(check.text(0));
}

StoreRescue rescueStore(const std::string& path, const std::string& error)
{
    static std::mutex guard; // several threads may meet the same damage: the second one finds it mended
    const std::lock_guard lock(guard);
    if (isDamaged(path)) {
        StoreRescue rescue{error, false};
        rescue.isDamaged = putAside(path, rescue.error);
        return rescue;
    }
    return {path + ": " + translated(QT_TRANSLATE_NOOP("ZARN::Store", "it could not be read; nothing is wrong with it")).toStdString(),
            false};
}

} // namespace ZARN
