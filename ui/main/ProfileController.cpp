#include "ui/main/ProfileController.h"

#include "app/Console.h"
#include "app/Property.h"
#include "profile/Profile.h"
#include "project/Project.h"

#include <QComboBox>

namespace ZARN {

ProfileController::ProfileController(const Session& session, ProfileCatalogue& catalogue, QComboBox& profiles, QComboBox& units)
    : mSession(session), mCatalogue(catalogue), mProfiles(profiles), mUnits(units)
{
}

bool ProfileController::loadEntry(const ProfileEntry& entry)
{
    mSession.profile.setCurrentVariant(entry.variant);
    if (entry.path.isEmpty() || !mSession.profile.loadProfile(entry.path))
        return false;
    mFile = entry.path;
    mText = entry.text;
    return true;
}

void ProfileController::load()
{
    const QString setting = QString::fromStdString(mSession.property.getString("Profile", "915"));
    if (!loadEntry(mCatalogue.find(setting))) {
        for (const ProfileEntry& entry : mCatalogue.entries()) {
            if (loadEntry(entry))
                break;
        }
    }
    mSession.project.setProfileData();
}

void ProfileController::fill()
{
    mProfiles.clear();
    for (const ProfileEntry& entry : mCatalogue.entries())
        mProfiles.addItem(entry.text);
    if (mProfiles.findText(mText) < 0 && !mText.isEmpty())
        mProfiles.addItem(mText);
    mProfiles.setCurrentIndex(mProfiles.findText(mText));
}

void ProfileController::update()
{
    mCatalogue.refresh();
    fill();
}

void ProfileController::select(const QString& name)
{
    mSession.console.print("slotProfileChanged <%s>\n", name.toUtf8().constData());
    mSession.property.setString("Profile", name.toStdString());
    mSession.property.writeXmlFile();
}

void ProfileController::selectUnit(int unit)
{
    mSession.property.setInt("Unit", unit);
    mSession.property.writeXmlFile();
    updateUnit();
}

void ProfileController::updateUnit()
{
    const EUnit unit = mSession.property.getInt("Unit", 0) == 1 ? EUnit::eImperial : EUnit::eMetric;
    mSession.profile.setCurrentUnit(unit);
    mUnits.setCurrentIndex(unit == EUnit::eImperial ? 1 : 0);
}

} // namespace ZARN
