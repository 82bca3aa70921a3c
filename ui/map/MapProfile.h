#pragma once

#include "ui/map/model/ProfileStrip.h"

#include <QWidget>

namespace ZARN {

/// The altitude along the path, below the map. A click, or moving with the button held, picks a time.
class MapProfile : public QWidget {
    Q_OBJECT

public:
    explicit MapProfile(QWidget* pParent = nullptr);

    void setPath(const MapPath& path, const QString& unit, double start);
    void setShown(const std::optional<TimeSpan>& span);
    void setTime(double time);
    [[nodiscard]] bool isEmpty() const { return mStrip.isEmpty(); }
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A time in seconds was picked.
    void signalTime(double time);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void pick(double x);

    ProfileStrip mStrip;
    MapStyle mStyle;
    double mTime = 0.0;
};

} // namespace ZARN
