#pragma once

#include "profile/FormulaDefinition.h"
#include "profile/ProfileCatalogue.h"
#include "project/Session.h"

#include <QCoreApplication>
#include <QString>

class QComboBox;

namespace ZARN {

/// Which profile is in force, and in which units: keeps selector, setting and loaded profile in step. Owned by the main window.
class ProfileController {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ProfileController)

public:
    /// @param catalogue lives longer than the controller.
    ProfileController(const Session& session, ProfileCatalogue& catalogue, QComboBox& profiles, QComboBox& units);

    /// Loads what the setting "Profile" names. Where that cannot be, what is in force stays; before anything is, the first profile of the
    /// catalogue that can be read takes its place, so that the program always starts. problem() says so.
    void load();
    /// Fills the selector from the catalogue, the loaded profile current.
    void fill();
    /// Reads the folders again and fills the selector.
    void update();
    /// Remembers an entry of the selector, or a profile file, as the one to load. @return false, with problem() set and nothing changed,
    /// when it cannot be loaded.
    bool select(const QString& name);
    /// Remembers the profile that was just installed as that file, and is loaded, as the one in force.
    void adoptInstalled(const QString& file);
    void selectUnit(int unit);
    /// Applies the unit of the settings to profile and selector.
    void updateUnit();

    /// The file that was loaded; empty when none could be.
    [[nodiscard]] const QString& file() const { return mFile; }
    /// Formulas that come with it.
    [[nodiscard]] FormulaDefinitions formulas() const;
    /// Whether that file was chosen as such, and is none of the catalogue's.
    [[nodiscard]] bool isChosenFile() const { return !mFile.isEmpty() && mText == mFile; }
    /// Why another profile is in force than the one wanted, for people; empty when it is the one.
    [[nodiscard]] const QString& problem() const { return mProblem; }

private:
    bool loadEntry(const ProfileEntry& entry);
    void remember(const QString& setting);

    Session mSession;
    ProfileCatalogue& mCatalogue;
    QComboBox& mProfiles;
    QComboBox& mUnits;
    QString mFile;
    QString mText;
    QString mProblem;
};

} // namespace ZARN
