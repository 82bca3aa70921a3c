#include "ui/main/LayoutController.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "ui/data/DialogData.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>

namespace ZARN {

namespace {

} // namespace

LayoutController::LayoutController(const Session& session, const QString& dataPath, Notices& notices, LayoutBar& bar, DialogData& data,
                                   QWidget* pWindow)
    : QObject(pWindow), mSession(session),
      mStore(session.console, dataPath + '/' + LayoutStore::kFileName, Settings::kLocale.text(session.property)), mBar(bar), mData(data),
      mpWindow(pWindow)
{
    notices.watch(mStore.file(), Notices::eLayouts, tr("Layouts cannot be saved"));
    if (mStore.isUnread())
        notices.setProblem(Notices::eLayouts, tr("Layouts unreadable"), dataPath + '/' + LayoutStore::kFileName);
    connect(&mBar, &LayoutBar::signalChosen, this, &LayoutController::slotChosen);
    connect(&mBar, &LayoutBar::signalCommand, this, &LayoutController::slotCommand);
    connect(&mData, &DialogData::signalLayout, this, &LayoutController::update);
    connect(&mData, &DialogData::signalTicks, this, &LayoutController::slotTicks);
}

QString LayoutController::current() const
{
    return Settings::kGraphLayout.text(mSession.property);
}

void LayoutController::setCurrent(const QString& name)
{
    if (name == current())
        return;
    Settings::kGraphLayout.set(mSession.property, name);
    mSession.property.writeXmlFile();
}

void LayoutController::setProfile(const QString& file, const QString& resourcePath)
{
    // A profile that the user installed over a shipped one has the same parameters.
    const QDir folder = QFileInfo(file).dir();
    mStore.setProfileFolders({folder.path(), resourcePath + "Resources/profiles/" + folder.dirName()});
    fill();
}

void LayoutController::restore(bool isFirst)
{
    const std::vector<DisplayLayout> layouts = mStore.all();
    const DisplayLayout* pLayout = mStore.find(current());
    if (!pLayout && isFirst && !layouts.empty())
        pLayout = &layouts.front();
    if (pLayout) {
        if (isFirst)
            tick(*pLayout);
        mData.graph().setLayout(*pLayout);
        Settings::kGraphLayout.set(mSession.property, pLayout->name); // written with the first thing that the user does
    }
    update();
}

void LayoutController::tick(const DisplayLayout& layout)
{
    for (const auto& [device, parameter] : mSession.profile.model().parameters()) {
        const auto found = std::ranges::find(layout.parameters, parameter.name, &DisplayLayout::Parameter::name);
        mSession.profile.setSelected(parameter.name, found != layout.parameters.end());
    }
    mSession.project.takeProfileData();
}

void LayoutController::slotChosen(const QString& name)
{
    const DisplayLayout* pLayout = mStore.find(name);
    if (!pLayout)
        return;
    mData.graph().setLayout(*pLayout); // before the ticks, for the graph remembers what it showed
    tick(*pLayout);
    setCurrent(name);
    Q_EMIT signalChosen();
    update();
}

void LayoutController::slotTicks(const DisplayLayout& layout)
{
    tick(layout);
    setCurrent(layout.name); // else what is saved next would go to the one that was chosen in between
    Q_EMIT signalChosen();
    update();
}

void LayoutController::fill()
{
    std::vector<LayoutBar::Entry> entries;
    for (const DisplayLayout& layout : mStore.all())
        entries.push_back({layout.name, layout.text(), !mStore.isShipped(layout.name)});
    mBar.setLayouts(entries);
    update();
}

void LayoutController::update()
{
    const DisplayLayout* pLayout = mStore.find(current());
    if (!pLayout)
        return mBar.setState({});
    mBar.setState({pLayout->name, !isShown(*pLayout), LayoutStore::missing(*pLayout, mSession.profile)});
}

DisplayLayout LayoutController::shown(const QString& name) const
{
    DisplayLayout layout = mData.layout();
    layout.name = name;
    if (const DisplayLayout* pChosen = mStore.find(current())) {
        const QStringList missing = LayoutStore::missing(*pChosen, mSession.profile);
        std::ranges::copy_if(pChosen->parameters, std::back_inserter(layout.parameters),
                             [&](const auto& parameter) { return missing.contains(QString::fromStdString(parameter.name)); });
    }
    return layout;
}

bool LayoutController::isShown(const DisplayLayout& layout) const
{
    const QStringList missing = LayoutStore::missing(layout, mSession.profile);
    std::vector<DisplayLayout::Parameter> wanted;
    std::ranges::copy_if(layout.parameters, std::back_inserter(wanted),
                         [&](const auto& parameter) { return !missing.contains(QString::fromStdString(parameter.name)); });
    const DisplayLayout present = mData.layout();
    return present.isSplit == layout.isSplit && present.scale == layout.scale && present.isShared == layout.isShared &&
           std::ranges::equal(wanted, present.parameters, [](const auto& a, const auto& b) {
               return a.name == b.name && a.height == b.height && a.scale == b.scale && (a.colour.isEmpty() || a.colour == b.colour);
           });
}

void LayoutController::slotCommand(int command)
{
    switch (command) {
    case LayoutBar::eSave: save(current()); break;
    case LayoutBar::eSaveAs: saveAs(); break;
    case LayoutBar::eRename: rename(); break;
    case LayoutBar::eRemove: remove(); break;
    case LayoutBar::eImport: importFile(); break;
    case LayoutBar::eExport: exportFile(); break;
    default: break;
    }
}

void LayoutController::save(const QString& name)
{
    if (!mStore.save(shown(name)) && mStore.file().isWritten())
        tell(tr("There are too many layouts to add one."));
    setCurrent(name);
    fill();
}

void LayoutController::saveAs()
{
    const DisplayLayout* pChosen = mStore.find(current());
    const QString name = askName(tr("Save Layout"), pChosen && !mStore.isShipped(pChosen->name) ? pChosen->name : QString(), true);
    if (!name.isEmpty())
        save(name);
}

void LayoutController::rename()
{
    const QString name = askName(tr("Rename Layout"), current(), false);
    if (name.isEmpty())
        return;
    mStore.rename(current(), name);
    setCurrent(name);
    fill();
}

void LayoutController::remove()
{
    if (!ask(tr("Remove the layout \"%1\" ?").arg(current()), tr("Remove")))
        return;
    mStore.remove(current());
    setCurrent({});
    fill();
}

void LayoutController::importFile()
{
    const QString file = QFileDialog::getOpenFileName(mpWindow, tr("Import Layouts"), folder(), tr("Layout Files (*.xml)"), nullptr,
                                                      QFileDialog::DontUseNativeDialog);
    if (file.isEmpty())
        return;
    keepFolder(file);
    const QStringList names = mStore.importFrom(file);
    fill();
    if (names.isEmpty())
        tell(tr("%1 holds no layout that could be read.").arg(QDir::toNativeSeparators(file)));
    else
        slotChosen(names.front());
}

void LayoutController::exportFile()
{
    QFileDialog dialog(mpWindow, tr("Export Layout"), folder(), tr("Layout Files (*.xml)"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("xml"); // given here, the dialog asks before it replaces that very file
    dialog.selectFile(QString(current()).replace(QRegularExpression("[^\\w -]", QRegularExpression::UseUnicodePropertiesOption), "_") +
                      ".xml");
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const QString file = dialog.selectedFiles().front();
    keepFolder(file);
    if (!mStore.exportTo(file, current()))
        tell(tr("The layout could not be written:\n%1").arg(QDir::toNativeSeparators(file)));
}

QString LayoutController::folder() const
{
    return Settings::kLayoutDir.isSet(mSession.property) ? Settings::kLayoutDir.text(mSession.property) : QDir::homePath();
}

void LayoutController::keepFolder(const QString& file)
{
    Settings::kLayoutDir.set(mSession.property, QFileInfo(file).absolutePath());
    mSession.property.writeXmlFile();
}

QString LayoutController::refusal(const QString& name, bool replaces) const
{
    if (name.isEmpty())
        return tr("A layout needs a name.");
    if (mStore.isShippedText(name))
        return tr("\"%1\" is a layout of the profile. Choose another name for yours.").arg(name);
    if (!replaces && mStore.find(name) && name != current())
        return tr("There is a layout \"%1\" already.").arg(name);
    return {};
}

QString LayoutController::askName(const QString& title, const QString& first, bool replaces)
{
    QString name = first;
    for (;;) {
        bool isGiven = false;
        name =
            DisplayLayout::tidyName(QInputDialog::getText(mpWindow, title, tr("Name of the layout:"), QLineEdit::Normal, name, &isGiven));
        if (!isGiven)
            return {};
        if (const QString why = refusal(name, replaces); !why.isEmpty())
            tell(why);
        else if (!mStore.find(name) || name == current() || ask(tr("Replace the layout \"%1\" ?").arg(name), tr("Replace")))
            return name;
    }
}

bool LayoutController::ask(const QString& question, const QString& yes)
{
    QMessageBox box(QMessageBox::Question, tr("ZARN Warning"), question, QMessageBox::NoButton, mpWindow);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* pYes = box.addButton(yes, QMessageBox::AcceptRole);
    QPushButton* pCancel = box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(pCancel);
    box.setEscapeButton(pCancel);
    box.exec();
    return box.clickedButton() == pYes;
}

void LayoutController::tell(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), text, QMessageBox::Ok, mpWindow);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace ZARN
