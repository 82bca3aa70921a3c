#pragma once

#include "ui/map/model/MapValues.h"

#include <QFrame>
#include <QScrollArea>

#include <vector>

class QBoxLayout;
class QButtonGroup;
class QGridLayout;
class QLabel;
class QToolBar;

namespace ZARN {

/// The dark panel of current values on the map.
class MapValuePanel : public QScrollArea {
    Q_OBJECT

public:
    explicit MapValuePanel(QWidget* pParent);

    /// One row for each value, in this order.
    void setRows(const std::vector<MapValue>& rows);
    /// Values and colours of the rows that are there.
    void setValues(const std::vector<MapValue>& rows);
    /// As large as its rows want, within the room that there is; of what is too wide the names are cut.
    void fitInto(const QSize& room);

private:
    struct Row {
        QString name;
        QLabel* pName;
        QLabel* pValue;
        QColor colour;
    };
    void setColour(Row& row, const QColor& colour) const;
    /// Cuts names, with an ellipsis, before a value would be.
    void elideNames(int width);

    QWidget* mpPanel = nullptr;
    std::vector<Row> mRows;
    int mNameWidth = 0; // pixels that names were cut to
};

/// The light panel of the map's commands.
class MapToolPanel : public QWidget {
    Q_OBJECT

public:
    static constexpr int kCentreAircraft = 0;

    /// @param scale of the overlays, see MapContext
    MapToolPanel(int scale, QWidget* pParent);
    void setChecked(int id, bool isChecked);
    [[nodiscard]] bool isChecked(int id) const;

Q_SIGNALS:
    void signalToggled(int id, bool isChecked);

private:
    QButtonGroup* mpGroup;
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
