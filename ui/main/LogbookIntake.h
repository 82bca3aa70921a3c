#pragma once

#include "app/BackgroundTask.h"
#include "project/Session.h"

#include <QStringList>

namespace ZARN {

class DecodingContext;
class Store;

/// Takes cards into the logbook, one after the other, in a thread of its own, and copies them into the archive where the user wants that.
/// A card that is there already costs a look at its folder. Owned by the logbook's controller.
class LogbookIntake : public QObject {
    Q_OBJECT

public:
    /// @param store path of the file
    LogbookIntake(const Session& session, QString store, QObject* pParent = nullptr);

    /// The file of the profile that is in force.
    void setProfile(const QString& file) { mProfile = file; }
    /// A card to be taken in when its turn comes. @param isAgain also where it is being taken, for what it is taken into has changed
    void take(const QString& folder, bool isAgain = false);
    /// Ends what is under way; nothing of that card is kept.
    void cancel();

Q_SIGNALS:
    /// A card was taken in, or could not be. @param error for people; empty when it was. @param unarchived the same of its copy in the archive
    void signalDone(const QString& folder, const QString& error, const QString& unarchived);
    /// The logbook was damaged, and is kept under another name, by what the error tells. The card is taken into a new one.
    void signalPutAside(const QString& error);

private:
    /// What a piece of work has, whatever is chosen in the window meanwhile.
    struct Job {
        std::string card;
        std::string store;
        QString profile;
        std::string variant;
        std::string archive; ///< empty: none
    };
    /// What became of it, for people; empty: nothing to be told.
    struct Result {
        std::string error;
        std::string unarchived;
        std::string putAside;
    };
    void begin();
    void finish();
    void work(const Job& job, const DecodingContext& context, Progress& progress);
    std::string keep(const Job& job, const DecodingContext& context, Progress& progress);
    static std::string keepIn(Store& store, const Job& job, const DecodingContext& context, Progress& progress);

    Session mSession;
    const QString mStore;
    QString mProfile;
    QStringList mFolders; ///< the first is being taken
    Result mResult;
    BackgroundTask mTask; // the last: its work refers to the result
};

} // namespace ZARN
