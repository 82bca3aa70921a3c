#pragma once

#include "vesk/gl/GlyphRaster.h"
#include "vesk/gl/Texture.h"
#include "vesk/gl/Vertex.h"

#include <QColor>
#include <QString>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace VESK::OpenGL {

class Device;

/// A font whose characters are rasterised once a size and drawn from a texture. One line of text, left to right.
class TextureFont {
public:
    explicit TextureFont(const QByteArray& fontFile) : mRaster(fontFile) {}

    [[nodiscard]] bool isValid() const { return mRaster.isValid(); }
    void setColour(const QColor& colour) { mColour = colour; }
    /// @param pixels em height in pixels of the view
    void setSize(double pixels) { mSize = pixels; }
    /// Draws the text with its pen starting at (x, y) on the base line. @param upwards turned by 90 degrees to the left
    void draw(Device& device, double x, double y, const QString& text, bool upwards = false);
    /// Length of the text in pixels of the view.
    [[nodiscard]] double width(const Device& device, const QString& text);

private:
    struct Placed {
        Glyph glyph;
        QPoint place; ///< in the texture
    };
    const Placed& placed(Device& device, char32_t character, int pixels);
    [[nodiscard]] bool findPlace(const QSize& size, QPoint& place);
    void restart(Device& device);

    GlyphRaster mRaster;
    QColor mColour = Qt::white;
    double mSize = 12.0;
    Texture mTexture;
    std::map<std::pair<char32_t, int>, Placed> mGlyphs;
    QPoint mNext;
    int mRowHeight = 0;
};

/// The fonts of a context by the names that they are registered under.
class TextureFonts {
public:
    /// @return null when the bytes are no font
    TextureFont* add(const std::string& name, const QByteArray& fontFile);
    [[nodiscard]] TextureFont* find(const std::string& name) const;

private:
    std::map<std::string, std::unique_ptr<TextureFont>> mFonts;
};

} // namespace VESK::OpenGL
