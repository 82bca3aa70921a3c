#pragma once

#include "project/Session.h"

#include <QWidget>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace ZARN {

struct TextSetting;

/// Where the map's tiles come from and how many are kept, as a page of the preferences. Every change is in force at once; the preferences
/// window, which owns it, writes the settings file.
class MapOptions : public QWidget {
    Q_OBJECT

public:
    /// @param dataPath folder below which earlier versions kept tiles; empty for none
    MapOptions(const Session& session, const QString& dataPath, QWidget* pParent = nullptr);

    /// Shows what the settings hold.
    void fill();

public Q_SLOTS:
    /// Keeps whether map tiles may be loaded from the server of the settings.
    void slotTiles(bool isAllowed);

Q_SIGNALS:
    void signalChanged();

protected:
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    void fillUsed();
    QWidget* createNetwork();
    QWidget* createLocal();
    QWidget* createKept();
    void connectFields();
    void keep();
    void keepNumbers();
    void keepText(const QLineEdit& line, const TextSetting& setting);
    void slotServer();
    void setPath(const QString& path);
    void empty();

    Session mSession;
    const QString mFormerTiles;
    QCheckBox* mpTiles;
    QLabel* mpServerText;
    QLineEdit* mpServer;
    QLineEdit* mpAttribution;
    QCheckBox* mpOffline;
    QLabel* mpPath;
    QSpinBox* mpZoom;
    QSpinBox* mpSize;
    QLabel* mpUsed;
};

} // namespace ZARN
