#pragma once

#include "ui/canvas/Canvas.h"
#include "vesk/gl/Device.h"
#include "vesk/gl/StateScope.h"
#include "vesk/gl/TextureFont.h"

#include <optional>

namespace ZARN {

/// A canvas on the current OpenGL context: one for each context, kept by its widget. Made, used and destroyed with the context current. Draw
/// between begin() and end(); whatever else uses the context finds its state unchanged then.
class GlCanvas : public Canvas {
public:
    /// @param pDevice what it draws through; without one, shaders
    explicit GlCanvas(std::unique_ptr<VESK::OpenGL::Device> pDevice = nullptr);
    ~GlCanvas() override;

    /// Compiles shaders and loads fonts. @return false when the context cannot draw; error() says why.
    bool init();
    [[nodiscard]] const QString& error() const { return mDevice.error(); }
    /// The library's own drawing, for what a canvas does not offer (map tiles).
    [[nodiscard]] VESK::OpenGL::Device& device() { return ready(); }
    [[nodiscard]] VESK::OpenGL::TextureFonts& fonts() { return mFonts; }

    /// @param size of the view in its own pixels  @param ratio pixels of the screen for each of them
    void begin(const QSize& size, double ratio, const QColor& background);
    void end();

    void push() override;
    void pop() override;
    void translate(double x, double y) override;
    void scale(double x, double y) override;
    void clip(const QRectF& rect) override;
    void lines(std::span<const QPointF> points, const CanvasPen& pen) override;
    void lineStrip(std::span<const QPointF> points, const CanvasPen& pen) override;
    void lineStrip(std::span<const QPointF> points, std::span<const QColor> colours, const CanvasPen& pen) override;
    void fillRect(const QRectF& rect, const QColor& colour) override;
    void triangles(std::span<const QPointF> points, const QColor& colour) override;
    void text(const QPointF& position, const QString& text, const CanvasText& style) override;
    void image(const QRectF& target, const QImage& image) override;

private:
    struct KeptImage {
        std::unique_ptr<VESK::OpenGL::Texture> texture;
        int lastFrame = 0;
    };
    [[nodiscard]] QRectF mapped(const QRectF& rect) const;
    /// Brings the clipping to the device: called before everything else that is drawn.
    VESK::OpenGL::Device& ready();
    void applyClip();
    void forgetImages();

    std::unique_ptr<VESK::OpenGL::Device> mpDevice;
    VESK::OpenGL::Device& mDevice;
    VESK::OpenGL::TextureFonts mFonts;
    VESK::OpenGL::TextureFont* mpRegular = nullptr;
    VESK::OpenGL::TextureFont* mpBold = nullptr;
    std::optional<VESK::OpenGL::StateScope> mState;
    std::optional<QRectF> mClip; // in pixels of the view
    std::vector<std::optional<QRectF>> mSavedClips;
    bool mClipChanged = false;
    std::map<qint64, KeptImage> mImages;
    int mFrame = 0;
};

} // namespace ZARN
