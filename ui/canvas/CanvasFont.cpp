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
constexpr double kAscent = 0.965;
constexpr double kLine = 1.22;

QString family(bool bold)
{
    const int number = QFontDatabase::addApplicationFontFromData(canvasFontFile(bold));
    return QFontDatabase::applicationFontFamilies(number).value(0);
}

} // namespace

QByteArray canvasFontFile(bool bold)
{
    registerFonts();
    QFile file(bold ? QStringLiteral(":monofont-bold.ttf") : QStringLiteral(":monofont.ttf"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QFont canvasFont(double size, bool bold)
{
    static const QString families[] = {family(false), family(true)};
    QFont font(families[bold ? 1 : 0]);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QSizeF canvasTextSize(const QString& text, double size, bool)
{
    return {std::ceil(static_cast<double>(text.size()) * kAdvance * size), std::ceil(kLine * size)};
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
