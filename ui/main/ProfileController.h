#pragma once

#include "profile/ProfileCatalogue.h"
#include "project/Session.h"

#include <QString>

class QComboBox;

namespace ZARN {

/// Which profile is in force, and in which units: keeps selector, setting and loaded profile in step. Owned by the main window.
class ProfileController {
public:
    /// @param catalogue lives longer than the controller.
    ProfileController(const Session& session, ProfileCatalogue& catalogue, QComboBox& profiles, QComboBox& units);

    /// Loads what the setting "Profile" names. Where that is damaged the first profile of the catalogue that can be read takes its
    /// place, so that the program always starts.
    void load();
    /// Fills the selector from the catalogue, the loaded profile current.
    void fill();
    /// Reads the folders again and fills the selector.
    void update();
    /// Remembers an entry of the selector, or a profile file, as the one to load.
    void select(const QString& name);
    void selectUnit(int unit);
    /// Applies the unit of the settings to profile and selector.
    void updateUnit();

    /// The file that was loaded; empty when none could be.
    [[nodiscard]] const QString& file() const { return mFile; }

private:
    bool loadEntry(const ProfileEntry& entry);

    Session mSession;
    ProfileCatalogue& mCatalogue;
    QComboBox& mProfiles;
    QComboBox& mUnits;
    QString mFile;
    QString mText;
};

} // namespace ZARN
