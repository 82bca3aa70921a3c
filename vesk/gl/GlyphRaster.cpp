#include "vesk/gl/GlyphRaster.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>

namespace VESK::OpenGL {

/// The FreeType objects, and the bytes that the face reads from as long as it lives.
struct GlyphRaster::Face {
    QByteArray file;
    FT_Library library = nullptr;
    FT_Face face = nullptr;
};

GlyphRaster::GlyphRaster(const QByteArray& fontFile) : mpFace(std::make_unique<Face>())
{
    mpFace->file = fontFile;
    if (FT_Init_FreeType(&mpFace->library) != 0)
        return;
    const auto* pBytes = reinterpret_cast<const FT_Byte*>(mpFace->file.constData());
    if (FT_New_Memory_Face(mpFace->library, pBytes, static_cast<FT_Long>(mpFace->file.size()), 0, &mpFace->face) != 0)
        mpFace->face = nullptr;
}

GlyphRaster::~GlyphRaster()
{
    if (mpFace->face)
        FT_Done_Face(mpFace->face);
    if (mpFace->library)
        FT_Done_FreeType(mpFace->library);
}

bool GlyphRaster::isValid() const
{
    return mpFace->face != nullptr;
}

Glyph GlyphRaster::glyph(char32_t character, int pixels) const
{
    FT_Face face = mpFace->face;
    Glyph out;
    if (!face || FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(std::clamp(pixels, 1, 512))) != 0)
        return out;
    if (FT_Load_Char(face, character, FT_LOAD_RENDER | FT_LOAD_NO_HINTING) != 0)
        return out;
    const FT_GlyphSlot slot = face->glyph;
    const FT_Bitmap& bitmap = slot->bitmap;
    out.advance = static_cast<double>(slot->linearHoriAdvance) / 65536.0;
    if (bitmap.pixel_mode != FT_PIXEL_MODE_GRAY)
        return out;
    out.size = QSize(static_cast<int>(bitmap.width), static_cast<int>(bitmap.rows));
    out.left = slot->bitmap_left;
    out.top = slot->bitmap_top;
    for (unsigned row = 0; row < bitmap.rows; ++row)
        out.coverage.append(reinterpret_cast<const char*>(bitmap.buffer) + static_cast<std::ptrdiff_t>(row) * bitmap.pitch, static_cast<qsizetype>(bitmap.width));
    return out;
}

} // namespace VESK::OpenGL
