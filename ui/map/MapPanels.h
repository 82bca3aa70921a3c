#pragma once

#include <QFrame>

#include <vector>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QMenu;
class QToolButton;

namespace ZARN {

/// The panel of the map's commands.
class MapToolPanel : public QFrame {
    Q_OBJECT

public:
    static constexpr int kCentreAircraft = 0;
    static constexpr int kShowValues = 1;
    static constexpr int kShowProfile = 2;

    /// @param scale of the overlays, see MapContext
    MapToolPanel(int scale, QWidget* pParent);
    /// One column of buttons where there is room for all of them, else more columns, of smaller buttons at last. Their size depends on the
    /// width of the map, so that it stays when something above or below the map comes or goes.
    void arrangeFor(const QSize& room, bool isWide);
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
    void place(int cell, int columns);
    QToolButton* addButton(const char* pIcon, const QString& text);
    void addCommand(const char* pIcon, const QString& text, int id);

    const int mScale;
    std::vector<QToolButton*>
        mButtons; ///< those that can be checked first, by command; no group, which would leave one of them to the Tab key
    QMenu* mpColours;
    QGridLayout* mpGrid;
};

/// Asks, above the map, whether map tiles may be fetched, and names the server that would be asked.
class MapConsentBar : public QFrame {
    Q_OBJECT

public:
    explicit MapConsentBar(QWidget* pParent);
    void setServer(const QString& name);
    /// Puts the buttons beside the text, or below it where that would leave the text too little.
    void arrangeFor(int width);

Q_SIGNALS:
    void signalAnswer(bool isAllowed);

private:
    QLabel* mpText;
    QBoxLayout* mpLine;
    QBoxLayout* mpButtons;
};

} // namespace ZARN
