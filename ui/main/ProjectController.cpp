#include "ui/main/ProjectController.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "project/Project.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

namespace ZARN {

ProjectController::ProjectController(const Session& session, QWidget* pWindow) : QObject(pWindow), mSession(session), mpWindow(pWindow) {}

QString ProjectController::lastPath() const
{
    return Settings::kLastProjectPath.text(mSession.property);
}

void ProjectController::newProject()
{
    if (mModified && !askSaveProject())
        return;
    mSession.project.clear();
    mHasFile = false;
    mModified = 0;
    Q_EMIT signalChanged();
}

void ProjectController::openProject()
{
    if (mModified && !askSaveProject())
        return;
    const QString file = QFileDialog::getOpenFileName(mpWindow, tr("Open ZARN Project"), lastPath(), tr("Project Files (*.xml)"), nullptr,
                                                      QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (file.isEmpty())
        return;
    if (!readProject(file)) {
        QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), tr("%1 is no readable project file.").arg(file), QMessageBox::Ok,
                        mpWindow);
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    Settings::kLastProjectPath.set(mSession.property, file);
    mSession.property.writeXmlFile();
    Q_EMIT signalChanged();
}

void ProjectController::restoreProject()
{
    if (!lastPath().isEmpty())
        readProject(lastPath());
    mModified = 0;
}

bool ProjectController::readProject(const QString& path)
{
    if (!mSession.project.readProject(path))
        return false;
    mHasFile = true;
    mModified = 0;
    return true;
}

QString ProjectController::askSaveName()
{
    const QString name = QFileDialog::getSaveFileName(mpWindow, tr("Save ZARN Project"), lastPath(), tr("Project Files (*.xml)"), nullptr,
                                                      QFileDialog::DontUseNativeDialog);
    return name.isEmpty() || name.endsWith(".xml") ? name : name + ".xml";
}

bool ProjectController::hasName() const
{
    return mHasFile && !lastPath().isEmpty() && lastPath() != Settings::kLastProjectPath.fallback;
}

QString ProjectController::saveName(bool askName)
{
    return askName || !hasName() ? askSaveName() : lastPath();
}

void ProjectController::keep()
{
    setModified();
    if (!hasName())
        return;
    mSession.project.saveProject(lastPath());
    mModified = mSession.project.file().isWritten() ? 0 : 1;
}

bool ProjectController::writeProject(const QString& path)
{
    mSession.project.saveProject(path);
    if (!mSession.project.file().isWritten())
        return false;
    Settings::kLastProjectPath.set(mSession.property, path);
    mSession.property.writeXmlFile();
    mHasFile = true;
    mModified = 0;
    Q_EMIT signalChanged();
    return true;
}

bool ProjectController::saveProject(bool askName)
{
    const QString path = saveName(askName);
    return !path.isEmpty() && (writeProject(path) || isGoneOn(path, false));
}

bool ProjectController::saveAtQuit()
{
    if (mModified == 0)
        return true;
    const QString path = saveName(false);
    return !path.isEmpty() && (writeProject(path) || isGoneOn(path, true));
}

bool ProjectController::isGoneOn(const QString& path, bool isQuit)
{
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), tr("The project could not be saved:\n%1").arg(QDir::toNativeSeparators(path)),
                    QMessageBox::NoButton, mpWindow);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* pQuit = isQuit ? box.addButton(tr("Quit without saving"), QMessageBox::DestructiveRole) : nullptr;
    QPushButton* pStay = box.addButton(isQuit ? tr("Cancel") : tr("Ok"), QMessageBox::RejectRole);
    box.setDefaultButton(pStay);
    box.setEscapeButton(pStay);
    box.exec();
    return pQuit && box.clickedButton() == pQuit;
}

bool ProjectController::askSaveProject()
{
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), tr("Current Project not saved !\nSave it now ?"), QMessageBox::NoButton,
                    mpWindow);
    const QPushButton* pYes = box.addButton(tr("Yes"), QMessageBox::YesRole);
    const QPushButton* pNo = box.addButton(tr("No"), QMessageBox::NoRole);
    QPushButton* pCancel = box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setEscapeButton(pCancel);
    box.exec();
    if (box.clickedButton() == pYes)
        return saveProject(false);
    return box.clickedButton() == pNo;
}

} // namespace ZARN
