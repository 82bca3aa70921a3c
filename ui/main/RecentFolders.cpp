#include "ui/main/RecentFolders.h"

#include "app/Property.h"
#include "app/Settings.h"

#include <QMenu>

namespace ZARN {

RecentFolders::RecentFolders(Property& property, QMenu& menu) : QObject(&menu), mProperty(property), mMenu(menu)
{
    fillMenu();
}

QStringList RecentFolders::folders() const
{
    QStringList folders;
    for (int i = 0; i < Settings::kRecentFolder.count; ++i) {
        const QString folder = Settings::kRecentFolder.text(mProperty, i);
        if (!folder.isEmpty())
            folders.append(folder);
    }
    return folders;
}

void RecentFolders::add(const QString& folder)
{
    QStringList list = folders();
    list.removeAll(folder);
    list.prepend(folder);
    store(list);
}

void RecentFolders::store(const QStringList& folders)
{
    for (int i = 0; i < Settings::kRecentFolder.count; ++i)
        Settings::kRecentFolder.set(mProperty, i, folders.value(i).toStdString());
    fillMenu();
}

void RecentFolders::fillMenu()
{
    mMenu.clear();
    const QStringList list = folders();
    for (const QString& folder : list) {
        // A single "&" in a path would mark a key.
        QAction* pAction = mMenu.addAction(QString(folder).replace("&", "&&"));
        connect(
            pAction, &QAction::triggered, this, [this, folder] { Q_EMIT signalChosen(folder); }, Qt::QueuedConnection);
    }
    if (list.isEmpty())
        mMenu.addAction(tr("No folder opened yet"))->setEnabled(false);
}

} // namespace ZARN
