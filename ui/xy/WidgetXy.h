#pragma once

#include "ui/xy/model/XyScene.h"

#include <QImage>
#include <QWidget>

namespace ZARN {

/// Shows one parameter over another, with the view time; a click selects the time of the point there. What does not move is drawn once.
class WidgetXy : public QWidget {
    Q_OBJECT

public:
    explicit WidgetXy(QWidget* pParent = nullptr);

    void setPoints(XyPoints points);
    [[nodiscard]] const XyPoints& points() const { return mPoints; }
    void setCursorAt(const std::optional<XyCursor>& cursor);
    /// What is said in place of points; empty for nothing.
    void setMessage(const QString& text);
    /// Draws it all on any canvas.
    void paintOn(Canvas& canvas, const QSize& size, const Palette& palette) const;

Q_SIGNALS:
    void signalTime(double time);
    /// The menu is wanted at a point of the screen.
    void signalMenu(const QPoint& point);

protected:
    void changeEvent(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;

private:
    [[nodiscard]] XyScene scene(const QSize& size, const Palette& palette) const;
    void drawGround();

    XyPoints mPoints;
    std::optional<XyCursor> mCursor;
    QString mMessage;
    QImage mGround; ///< null when it must be drawn anew
};

} // namespace ZARN
