#pragma once

#include "ui/gl/GlCanvas.h"

#include <functional>
#include <memory>

class QWidget;

namespace ZARN {

/// What a view that is drawn with OpenGL does when its surface asks it to.
struct GlPainting {
    QColor background;
    std::function<void(GlCanvas& canvas, const QSize& size, double ratio)> paint; ///< the canvas is ready and empty
    std::function<void(Canvas& canvas)> paintAbove;                               ///< what moves above it and costs little; may be null
    std::function<void()> release; ///< the context, current now, is about to go, and with it all that was put on it; may be null
    std::function<void(const QString& reason)> failed; ///< this surface cannot draw; not called from within its painting
};

/// What a view that is drawn with OpenGL is shown on. It takes no events, and its context may go and come again, as when a window moves
/// to another screen.
class GlSurface {
public:
    /// Makes what the canvas draws through; null draws with shaders.
    using CreateDevice = std::unique_ptr<VESK::OpenGL::Device> (*)();

    GlSurface(const GlSurface&) = delete;
    GlSurface& operator=(const GlSurface&) = delete;
    virtual ~GlSurface() = default;

    /// Composed by the graphics card with all else of the window. Belongs to the parent.
    static GlSurface* createOnCard(const GlPainting& painting, CreateDevice createDevice, QWidget* pParent);
    /// Drawn into an image which the toolkit's painter puts into the window: where a program plays the graphics card, one such view
    /// would otherwise let that program compose the whole window at each change of any part of it. Belongs to the parent.
    static GlSurface* createInMemory(const GlPainting& painting, QWidget* pParent);

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Has the view painted as soon as the toolkit finds time. Nothing else has it painted but a change of size.
    virtual void requestFrame() = 0;
    /// The same where only what is painted above has changed: the rest is kept, where that can be done.
    virtual void requestAbove() = 0;

protected:
    explicit GlSurface(const GlPainting& painting, CreateDevice createDevice = nullptr) : mPainting(painting), mCreateDevice(createDevice)
    {
    }
    /// With the context current: makes the canvas. @return whether it can draw
    bool start();
    enum class ELayers { eAll, eGround };
    /// With the context current.
    void draw(const QSize& size, double ratio, ELayers layers);
    /// With the context current: gives up what is on it.
    void finish();
    void drawAbove(Canvas& canvas) const;
    [[nodiscard]] bool isStarted() const { return mpCanvas != nullptr; }
    void fail(const QString& reason);

private:
    GlPainting mPainting;
    CreateDevice mCreateDevice;
    std::unique_ptr<GlCanvas> mpCanvas;
};

} // namespace ZARN
