#include "ui/main/ProfileController.h"

#include "app/Console.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "app/XmlHandler.h"
#include "profile/Profile.h"
#include "profile/ui/ProfileProblem.h"
#include "project/FormulaXml.h"
#include "project/Project.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>

namespace ZARN {

ProfileController::ProfileController(const Session& session, ProfileCatalogue& catalogue, QComboBox& profiles, QComboBox& units)
    : mSession(session), mCatalogue(catalogue), mProfiles(profiles), mUnits(units)
{
}

bool ProfileController::loadEntry(const ProfileEntry& entry)
{
    if (entry.path.isEmpty() || !mSession.profile.loadProfile(entry.path, entry.variant))
        return false;
    mSession.profile.setCurrentVariant(entry.variant);
    mFile = entry.path;
    mText = entry.text;
    return true;
}

void ProfileController::load()
{
    mProblem.clear();
    const bool isChosen = Settings::kProfile.isSet(mSession.property);
    const QString setting = isChosen ? Settings::kProfile.text(mSession.property) : QString(Settings::kProfile.fallback);
    if (!loadEntry(mCatalogue.find(setting))) {
        for (const ProfileEntry& entry : mCatalogue.entries()) {
            if (!mFile.isEmpty() || loadEntry(entry))
                break;
        }
        if (mFile.isEmpty())
            mProblem = tr("There is no profile that could be read: nothing of a recording can be decoded.");
        else if (isChosen)
            mProblem = tr("The profile \"%1\" of the settings is missing or damaged. In its place is in force: %2").arg(setting, mText);
    }
    mSession.project.setProfileData();
}

FormulaDefinitions ProfileController::formulas() const
{
    return FormulaXml(XmlHandler(mSession.console)).readFile(QFileInfo(mFile).dir().filePath("Formulas.xml"));
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

bool ProfileController::select(const QString& name)
{
    mSession.console.print("slotProfileChanged <%s>\n", name.toUtf8().constData());
    const ProfileEntry entry = mCatalogue.find(name);
    mProblem = profileProblem(mSession.console, entry.path.isEmpty() ? name : entry.path);
    if (!mProblem.isEmpty())
        return false;
    remember(name);
    return true;
}

void ProfileController::adoptInstalled(const QString& file)
{
    mCatalogue.refresh();
    const ProfileEntry entry = mCatalogue.entryOf(file, mSession.profile.currentVariant());
    remember(entry.text.isEmpty() ? file : entry.text);
}

void ProfileController::remember(const QString& setting)
{
    Settings::kProfile.set(mSession.property, setting);
    mSession.property.writeXmlFile();
}

void ProfileController::selectUnit(int unit)
{
    Settings::kUnit.set(mSession.property, unit);
    mSession.property.writeXmlFile();
    updateUnit();
}

void ProfileController::updateUnit()
{
    const EUnit unit = Settings::kUnit.get(mSession.property) == 1 ? EUnit::eImperial : EUnit::eMetric;
    mSession.profile.setCurrentUnit(unit);
    mUnits.setCurrentIndex(unit == EUnit::eImperial ? 1 : 0);
}

} // namespace ZARN
