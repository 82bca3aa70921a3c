#pragma once

#include "ui/gl/GlCanvas.h"
#include "ui/gl/Surface.h"

#include <memory>

namespace ZARN {

/// What surfaces have in common that are drawn with OpenGL: the canvas on their context, which may go and come again, as when a window moves
/// to another screen.
class GlSurface : public Surface {
protected:
    /// Makes what the canvas draws through; null draws with shaders.
    using CreateDevice = std::unique_ptr<VESK::OpenGL::Device> (*)();

    explicit GlSurface(const SurfacePainting& painting, CreateDevice createDevice = nullptr)
        : mPainting(painting), mCreateDevice(createDevice)
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
    SurfacePainting mPainting;
    CreateDevice mCreateDevice;
    std::unique_ptr<GlCanvas> mpCanvas;
};

} // namespace ZARN
