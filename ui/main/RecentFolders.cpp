#include "ui/main/RecentFolders.h"

#include "app/Property.h"

#include <QMenu>

namespace ZARN {

namespace {

std::string keyOf(int number)
{
    return "RecentFolder" + std::to_string(number);
}

} // namespace

RecentFolders::RecentFolders(Property& property, QMenu& menu) : QObject(&menu), mProperty(property), mMenu(menu)
{
    fillMenu();
}

QStringList RecentFolders::folders() const
{
    QStringList folders;
    for (int i = 0; i < kCount; ++i) {
        const QString folder = QString::fromStdString(mProperty.getString(keyOf(i), ""));
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
    for (int i = 0; i < kCount; ++i)
        mProperty.setString(keyOf(i), folders.value(i).toStdString());
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
