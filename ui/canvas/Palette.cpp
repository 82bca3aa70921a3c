#include "ui/canvas/Palette.h"

namespace ZARN {

const Palette& Palette::light()
{
    static const Palette kPalette{
        .graph = {.ground = Qt::black, .grid = {0xff, 0x66, 0x66}, .label = Qt::black, .labelGround = {0xbb, 0xbb, 0xbb}},
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
        .graph = {.ground = Qt::white, .grid = {0x99, 0xa6, 0xb3}, .label = Qt::black, .labelGround = Qt::white},
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
