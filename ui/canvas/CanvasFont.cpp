#include "ui/canvas/CanvasFont.h"

#include "ui/canvas/FontAdvances.h"

#include <QFile>
#include <QFontDatabase>

#include <cmath>
#include <new>

/// Registers the resource; a static library's are not by themselves, and the macro wants to stand outside every namespace.
static void registerFonts()
{
    Q_INIT_RESOURCE(fonts);
}

namespace ZARN {

namespace {

// Of the font's own tables, in em.
constexpr double kDigit = 0.65; // of every digit, regular and bold
constexpr double kAscent = 0.965;
constexpr double kLine = 1.22;

/// @throw std::bad_alloc without memory to unpack it, the one thing that keeps a file of the program's own from being read: what is drawn
/// and written would come without its colours and letters else
QByteArray content(const char* name)
{
    registerFonts();
    QFile file(name);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (bytes.isEmpty() || bytes.size() < file.size())
        throw std::bad_alloc();
    return bytes;
}

QString family(const QByteArray& file)
{
    return QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFontFromData(file)).value(0);
}

QFont fontOf(double size, bool bold)
{
    static const QString families[] = {family(canvasFontFile(false)), family(canvasFontFile(true))};
    QFont font(families[bold ? 1 : 0]);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

QByteArray canvasFontFile(bool bold)
{
    return content(bold ? ":textfont-bold.otf" : ":textfont.otf");
}

QByteArray paletteFile()
{
    return content(":palette.txt");
}

QFont canvasFont(double size, bool bold)
{
    QFont font = fontOf(size, bold);
    font.setKerning(false); // or a text would be as wide as what it is drawn with makes it
    return font;
}

QFont textFont(double size, bool bold)
{
    return fontOf(size, bold);
}

QSizeF canvasTextSize(const QString& text, double size, bool)
{
    static const FontAdvances kAdvances(canvasFontFile(false)); // those of the bold one are the same
    double width = 0.0;
    for (const QChar character : text)
        width += kAdvances.of(character.unicode());
    return {std::ceil(width * size - 1e-4), std::ceil(kLine * size)};
}

double canvasAdvance(double size)
{
    return kDigit * size;
}

double canvasAscent(double size)
{
    return std::round(kAscent * size);
}

} // namespace ZARN
