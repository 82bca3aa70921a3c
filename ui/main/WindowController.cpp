#include "ui/main/WindowController.h"

#include "app/DataHandler.h"
#include "app/Settings.h"
#include "profile/ui/DialogProfileInfo.h"
#include "ui/main/DialogAbout.h"
#include "ui/main/DialogHelp.h"
#include "ui/main/DialogPreferences.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainCommands.h"
#include "ui/main/ProfileController.h"
#include "ui/main/WindowEnvironment.h"

namespace ZARN {

WindowController::WindowController(const Session& session, const WindowEnvironment& environment, const ProfileCatalogue& catalogue,
                                   ProfileController& profiles, MainCommands& commands, QWidget* pWindow)
    : QObject(pWindow), mSession(session), mEnvironment(environment), mCatalogue(catalogue), mProfiles(profiles), mpWindow(pWindow)
{
    connectWindow(commands, eActionAbout, [this] { return new DialogAbout(mpWindow); });
    connectWindow(commands, eActionHelp, [this] { return new DialogHelp(Settings::kLocale.text(mSession.property), mpWindow); });
    connectWindow(commands, eActionProfile, [this] { return createProfileInfo(); });
    connectWindow(commands, eActionPreferences, [this] { return createPreferences(); });
}

template <typename Create> void WindowController::connectWindow(MainCommands& commands, int id, Create create)
{
    commands.handle(id, [create, pWindow = decltype(create())()](QAction&) mutable {
        if (!pWindow)
            pWindow = create();
        pWindow->show();
        pWindow->raise();
        pWindow->activateWindow();
    });
}

DialogProfileInfo* WindowController::createProfileInfo()
{
    mpProfileInfo = new DialogProfileInfo(mSession, mCatalogue, mpWindow);
    connect(mpProfileInfo, &DialogProfileInfo::signalProfileChanged, this, [this] {
        mProfiles.adoptInstalled(mpProfileInfo->profileFile());
        Q_EMIT signalProfileFileChanged();
    });
    tellProfile();
    return mpProfileInfo;
}

DialogPreferences* WindowController::createPreferences()
{
    const QString dataPath = QString::fromStdString(mEnvironment.folders.dataPath());
    auto* pPreferences = new DialogPreferences(mSession, mEnvironment.kernel, mpWindow, dataPath);
    connect(pPreferences, &DialogPreferences::signalProfileFileChanged, this, &WindowController::signalProfileFileChanged);
    connect(pPreferences, &DialogPreferences::signalTilesChanged, this, &WindowController::signalTilesChanged);
    return pPreferences;
}

void WindowController::tellProfile()
{
    if (!mpProfileInfo)
        return;
    mpProfileInfo->setProfileFile(mProfiles.file(), mProfiles.isChosenFile());
    mpProfileInfo->fillProfileInfo();
}

} // namespace ZARN
