#pragma once

#include <QObject>
#include <QStringList>

class QMenu;

namespace ZARN {

class Property;

/// The card folders that were opened last, newest first, kept in the settings, and the menu that offers them.
class RecentFolders : public QObject {
    Q_OBJECT

public:
    RecentFolders(Property& property, QMenu& menu);

    [[nodiscard]] QStringList folders() const;
    /// Puts a folder at the head; the caller writes the settings file.
    void add(const QString& folder);

Q_SIGNALS:
    void signalChosen(const QString& folder);

private:
    void store(const QStringList& folders);
    void fillMenu();

    Property& mProperty;
    QMenu& mMenu;
};

} // namespace ZARN
