#pragma once

#include <QFrame>

#include <array>

class QAbstractButton;
class QAction;
class QBoxLayout;
class QIcon;
class QLabel;
class QMenu;
class QToolBar;

namespace ZARN {

/// The light panel of the map's commands.
class MapToolPanel : public QWidget {
    Q_OBJECT

public:
    static constexpr int kCentreAircraft = 0;
    static constexpr int kShowValues = 1;
    static constexpr int kShowProfile = 2;

    /// @param scale of the overlays, see MapContext
    MapToolPanel(int scale, QWidget* pParent);
    /// Stands upright where there is room for all commands, else lies.
    void arrangeFor(const QSize& room);
    void setChecked(int id, bool isChecked);
    [[nodiscard]] bool isChecked(int id) const;
    /// What the path can be coloured by; to be filled when it is about to be shown.
    [[nodiscard]] QMenu& colourMenu() { return *mpColours; }

Q_SIGNALS:
    void signalToggled(int id, bool isChecked);
    /// @param factor of the range that is seen
    void signalZoom(double factor);
    /// The whole path is wanted.
    void signalFit();

private:
    void addCommand(QToolBar& bar, const QIcon& icon, const QString& text, int id);
    QAction* addButton(QToolBar& bar, const QIcon& icon, const QString& text);
    void addColours(QToolBar& bar, const QIcon& icon);

    std::array<QAbstractButton*, 3> mButtons{}; ///< by command; no group, which would leave one of them to the Tab key
    QMenu* mpColours;
    QToolBar* mpBar;
};

/// Asks, on the map itself, whether map tiles may be fetched, and names the server that would be asked.
class MapConsentBar : public QFrame {
    Q_OBJECT

public:
    explicit MapConsentBar(QWidget* pParent);
    void setServer(const QString& name);
    /// Puts the buttons beside the text, or below it where that would leave the text too little. @return the height that the bar then needs.
    int arrangeFor(int width);

Q_SIGNALS:
    void signalAnswer(bool isAllowed);

private:
    QLabel* mpText;
    QBoxLayout* mpLine;
    QBoxLayout* mpButtons;
};

} // namespace ZARN
