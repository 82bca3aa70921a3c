#pragma once

#include <QToolBar>

#include <functional>

class QComboBox;

namespace ZARN {

/// The main window's tool bar: its commands, the folders opened last, the profile and the units.
class MainToolBar : public QToolBar {
    Q_OBJECT

public:
    /// @param action gives the action of a number
    explicit MainToolBar(const std::function<QAction*(int id)>& action);

    /// Behind the button that opens a card.
    [[nodiscard]] QMenu& folders() { return *mpFolders; }
    [[nodiscard]] QComboBox& profiles() { return *mpProfiles; }
    [[nodiscard]] QComboBox& units() { return *mpUnits; }

Q_SIGNALS:
    /// The user chose an entry of the profile selector.
    void signalProfile(const QString& name);
    void signalUnit(int index);

protected:
    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void addFolders(QAction* pOpen);
    void addMore(QAction* pFirst, const QList<QAction*>& others);
    void addProfiles();
    void addUnits();
    void giveRoom();
    void sizeIcons();
    QComboBox* addSelector(const char* name, int leastWidth, const QString& toolTip, const QString& accessibleName);

    QMenu* mpFolders;
    QComboBox* mpProfiles = nullptr;
    QComboBox* mpUnits = nullptr;
};

} // namespace ZARN
