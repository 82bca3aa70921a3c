#pragma once

#include "project/Session.h"

#include <QObject>

class DialogProfileInfo;
class QWidget;

namespace ZARN {

class DialogPreferences;
class MainCommands;
class ProfileCatalogue;
class ProfileController;
struct WindowEnvironment;

/// Opens the windows that stand beside the main window: help, licences, profile, preferences. Each is made when it is asked for the first
/// time, so that nobody waits for it at the start. Owned by the main window; what it is given outlives it.
class WindowController : public QObject {
    Q_OBJECT

public:
    WindowController(const Session& session, const WindowEnvironment& environment, const ProfileCatalogue& catalogue, ProfileController& profiles,
                     MainCommands& commands, QWidget* pWindow);

    /// Another profile is in force, or the same one again.
    void tellProfile();

Q_SIGNALS:
    /// Another profile file is in force.
    void signalProfileFileChanged();
    /// The settings of the map were changed.
    void signalTilesChanged();

private:
    template <typename Create> void connectWindow(MainCommands& commands, int id, Create create);
    DialogProfileInfo* createProfileInfo();
    DialogPreferences* createPreferences();

    const Session& mSession;
    const WindowEnvironment& mEnvironment;
    const ProfileCatalogue& mCatalogue;
    ProfileController& mProfiles;
    QWidget* mpWindow;
    DialogProfileInfo* mpProfileInfo = nullptr; ///< once it was asked for
};

} // namespace ZARN
