#pragma once

#include <QColor>
#include <QSize>
#include <QString>

#include <functional>

class QWidget;

namespace VESK::OpenGL {
class Device;
}

namespace ZARN {

class Canvas;

/// What a view does when the surface that it is drawn on asks it to. What may be null does nothing then.
struct SurfacePainting {
    QColor background{Qt::black}; ///< of what OpenGL draws on; the painter's canvas is as the toolkit gives it
    /// Computes what is painted next, which changes nothing any more. May be null.
    std::function<void(const QSize& size, double ratio)> update;
    /// The canvas is ready. The device is for what a canvas does not offer; null where nothing is drawn with OpenGL.
    std::function<void(Canvas& canvas, VESK::OpenGL::Device* pDevice)> paint;
    std::function<void(Canvas& canvas)> paintAbove;    ///< what moves above it and costs little; may be null
    std::function<void()> release;                     ///< the context, current now, is about to go; may be null
    std::function<void(const QString& reason)> failed; ///< this surface cannot draw; not called from within its painting
};

/// What a view is drawn on and shown by: fills a widget of its own, takes no events, and asks for the picture whenever the toolkit wants one.
class Surface {
public:
    enum class EKind {
        eFastest,       ///< what shows a canvas best on this machine
        eFixedFunction, ///< OpenGL as it was before shaders
        eOpenGl,        ///< whatever the machine is: the view draws with the device
        ePainter        ///< the toolkit's own painter, which always works
    };
    /// Decides between graphics card, memory and painter. Belongs to the parent.
    static Surface* create(EKind kind, const SurfacePainting& painting, QWidget* pParent);

    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    virtual ~Surface() = default;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Has the view painted as soon as the toolkit finds time. Nothing else has it painted but a change of size.
    virtual void requestFrame() = 0;
    /// The same where only what is painted above has changed: the rest is kept, where that can be done.
    virtual void requestAbove() = 0;

protected:
    Surface() = default;
};

} // namespace ZARN
