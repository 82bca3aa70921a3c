#pragma once

#include <QByteArray>
#include <QRect>

#include <cstdint>
#include <memory>

namespace VESK::OpenGL {

/// A character as FreeType draws it: coverage 0..255 by rows, and where it lies relative to the pen on the base line.
struct Glyph {
    QSize size;
    int left = 0;     ///< of the box, to the right of the pen
    int top = 0;      ///< of the box, above the base line
    double advance = 0.0;
    QByteArray coverage;
};

/// A font file of its own FreeType instance.
class GlyphRaster {
public:
    explicit GlyphRaster(const QByteArray& fontFile);
    ~GlyphRaster();
    GlyphRaster(const GlyphRaster&) = delete;
    GlyphRaster& operator=(const GlyphRaster&) = delete;

    /// False for bytes that are no font; every glyph is empty then.
    [[nodiscard]] bool isValid() const;
    /// @param pixels em height, held to 1..512. A character that the font lacks gives its box for missing ones.
    [[nodiscard]] Glyph glyph(char32_t character, int pixels) const;

private:
    struct Face;
    std::unique_ptr<Face> mpFace;
};

} // namespace VESK::OpenGL
