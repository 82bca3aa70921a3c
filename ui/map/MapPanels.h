#pragma once

#include "ui/map/model/MapValues.h"

#include <QFrame>
#include <QScrollArea>

#include <algorithm>
#include <array>
#include <vector>

class QAbstractButton;
class QBoxLayout;
class QGridLayout;
class QIcon;
class QLabel;
class QToolBar;

namespace ZARN {

/// The dark panel of current values on the map. Its ground is opaque, and colours are lightened until they can be read on it. It shows whole
/// rows only; what is too wide is cut, what is too tall scrolled row by row.
class MapValuePanel : public QFrame {
    Q_OBJECT

public:
    /// What of the rows is shown in some room.
    struct Fit {
        QSize size;
        int rows = 0;
        bool isWhole = false;    ///< no text is cut
        bool isReadable = false; ///< no value is cut
        /// What can be read: a value that is cut tells nothing.
        [[nodiscard]] int score() const { return isWhole ? 4 * rows : isReadable ? 2 * rows : std::min(rows, 1); }
    };

    explicit MapValuePanel(QWidget* pParent);

    /// One row for each value, in this order.
    void setRows(const std::vector<MapValue>& rows);
    /// Values and colours of the rows that are there.
    void setValues(const std::vector<MapValue>& rows);
    /// Takes the measure of the texts as they are now, for fitting.
    void measure();
    /// What would be shown within the room that there is and an area in pixels.
    [[nodiscard]] Fit fit(const QSize& room, int area) const;
    /// Takes the size of a fit, and cuts what is too wide for it.
    void apply(const Fit& fit);

private:
    struct Row {
        QString name;
        QString value;
        QLabel* pName;
        QLabel* pValue;
        QColor colour;
    };
    void setColour(Row& row, const QColor& colour) const;
    /// Cuts names with an ellipsis, and values where a name is left the least.
    void elide(int width);
    [[nodiscard]] int step() const;

    QScrollArea* mpScroll;
    QWidget* mpPanel = nullptr;
    std::vector<Row> mRows;
    int mRowHeight = 0;
    int mNames = 0; ///< pixels of the widest name
    int mValues = 0;
};

/// The light panel of the map's commands.
class MapToolPanel : public QWidget {
    Q_OBJECT

public:
    static constexpr int kCentreAircraft = 0;
    static constexpr int kShowValues = 1;

    /// @param scale of the overlays, see MapContext
    MapToolPanel(int scale, QWidget* pParent);
    void setChecked(int id, bool isChecked);
    [[nodiscard]] bool isChecked(int id) const;

Q_SIGNALS:
    void signalToggled(int id, bool isChecked);

private:
    void addCommand(QToolBar& bar, const QIcon& icon, const QString& text, int id);

    std::array<QAbstractButton*, 2> mButtons{}; ///< by command; no group, which would leave one of them to the Tab key
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
