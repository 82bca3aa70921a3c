#include "ui/canvas/Palette.h"

namespace ZARN {

namespace {

QColor fraction(float red, float green, float blue)
{
    return QColor::fromRgbF(red, green, blue);
}

/// Every two of them differ by 18 in CIELAB at least, also where one of the three kinds of cones is missing.
const std::array<QColor, 12> kOnLight{QColor(0x00, 0x72, 0xb2), QColor(0xb8, 0x5c, 0x00), QColor(0x33, 0x11, 0x99),
                                      QColor(0x77, 0x11, 0x11), QColor(0x77, 0x99, 0x88), QColor(0x88, 0x11, 0xff),
                                      QColor(0x55, 0x22, 0x44), QColor(0xbb, 0x77, 0x55), QColor(0xcc, 0x55, 0xff),
                                      QColor(0x66, 0x66, 0x88), QColor(0x77, 0x55, 0x55), QColor(0x55, 0x33, 0x77)};
const std::array<QColor, 12> kOnDark{QColor(0x5a, 0xae, 0xff), QColor(0xff, 0xb0, 0x50), QColor(0x77, 0xff, 0x99),
                                     QColor(0xff, 0x70, 0x58), QColor(0xff, 0xdd, 0x00), QColor(0xbb, 0x44, 0xaa),
                                     QColor(0xcc, 0xdd, 0xcc), QColor(0xaa, 0xdd, 0xff), QColor(0xbb, 0x00, 0xff),
                                     QColor(0xaa, 0x88, 0x99), QColor(0xdd, 0x33, 0x55), QColor(0xff, 0x00, 0x00)};
const std::array<QColor, 12> kStandard{fraction(1.0F, 0.0F, 0.0F),  fraction(0.0F, 0.7F, 0.0F),  fraction(0.0F, 0.0F, 0.7F),
                                       fraction(0.5F, 0.5F, 0.0F),  fraction(0.0F, 0.5F, 0.5F),  fraction(0.5F, 0.0F, 0.5F),
                                       fraction(1.0F, 0.55F, 0.0F), fraction(0.3F, 0.75F, 1.0F), fraction(1.0F, 0.2F, 0.8F),
                                       fraction(0.9F, 0.9F, 0.2F),  fraction(0.6F, 0.4F, 0.25F), fraction(0.3F, 0.95F, 0.75F)};

} // namespace

const Palette::Graph& Palette::graphColours(EGraphPalette palette)
{
    static const Graph kDark{{0x1d, 0x24, 0x2c}, {0x5a, 0x68, 0x76}, {0xe8, 0xec, 0xf0}, {0x15, 0x1b, 0x22}, kOnDark};
    static const Graph kLight{Qt::white, {0x9a, 0xa8, 0xb6}, {0x1c, 0x26, 0x30}, {0xee, 0xf1, 0xf4}, kOnLight};
    switch (palette) {
    case EGraphPalette::eDark: return kDark;
    case EGraphPalette::eLight: return kLight;
    case EGraphPalette::ePrint: return print().graph;
    default: return light().graph;
    }
}

const Palette& Palette::light()
{
    static const Palette kPalette{
        .graph =
            {.ground = Qt::black, .grid = {0xff, 0x66, 0x66}, .label = Qt::black, .labelGround = {0xbb, 0xbb, 0xbb}, .traces = kStandard},
        .map = {.path = {255, 0, 0},
                .text = QColor::fromRgbF(0.4F, 0.4F, 0.4F),
                .textGround = {255, 255, 255, 225},
                .grid = {90, 110, 130, 60},
                .gridText = {90, 110, 130},
                .frame = {90, 110, 130}},
    };
    return kPalette;
}

const Palette& Palette::print()
{
    static const Palette kPalette{
        .graph = {.ground = Qt::white, .grid = {0x99, 0xa6, 0xb3}, .label = Qt::black, .labelGround = Qt::white, .traces = kOnLight},
        .map = {.path = {200, 0, 0},
                .text = Qt::black,
                .textGround = {255, 255, 255, 200},
                .grid = {150, 155, 160},
                .gridText = QColor(150, 155, 160).darker(),
                .frame = {150, 155, 160}},
    };
    return kPalette;
}

} // namespace ZARN
