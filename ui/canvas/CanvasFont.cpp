#include "ui/canvas/CanvasFont.h"

#include <QFile>
#include <QFontDatabase>

#include <cmath>

/// Registers the resource; a static library's are not by themselves, and the macro wants to stand outside every namespace.
static void registerFonts()
{
    Q_INIT_RESOURCE(fonts);
}

namespace ZARN {

namespace {

// Of the font's own tables, in em.
constexpr double kAdvance = 0.65;
constexpr double kNarrow = 0.3;
constexpr double kAscent = 0.965;
constexpr double kLine = 1.22;

double advance(QChar character)
{
    switch (character.unicode()) {
    case '.':
    case ',':
    case ':':
    case 0x00b7: return kNarrow;
    default: return kAdvance;
    }
}

QByteArray content(const char* name)
{
    registerFonts();
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString family(const QByteArray& file)
{
    return QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFontFromData(file)).value(0);
}

QFont font(const QString& family, double size, bool bold)
{
    QFont font(family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

QByteArray canvasFontFile(bool bold)
{
    return content(bold ? ":monofont-bold.ttf" : ":monofont.ttf");
}

QByteArray textFontFile(bool bold)
{
    return content(bold ? ":textfont-bold.otf" : ":textfont.otf");
}

QFont canvasFont(double size, bool bold)
{
    static const QString families[] = {family(canvasFontFile(false)), family(canvasFontFile(true))};
    return font(families[bold ? 1 : 0], size, bold);
}

QFont textFont(double size, bool bold)
{
    static const QString families[] = {family(textFontFile(false)), family(textFontFile(true))};
    return font(families[bold ? 1 : 0], size, bold);
}

QSizeF canvasTextSize(const QString& text, double size, bool)
{
    double width = 0.0;
    for (const QChar character : text)
        width += advance(character);
    return {std::ceil(width * size - 1e-6), std::ceil(kLine * size)};
}

double canvasAdvance(double size)
{
    return kAdvance * size;
}

double canvasAscent(double size)
{
    return std::round(kAscent * size);
}

} // namespace ZARN
