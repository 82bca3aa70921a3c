#include "ui/data/SegmentClock.h"

#include "app/gui/AccessibleText.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

namespace {

// In units of the advance of a digit.
constexpr double kDigit = 0.8;      // width
constexpr double kPoint = 0.45;     // advance of a point, a colon or a blank
constexpr double kHeight = 1.75;    // of a digit, at most
constexpr double kThickness = 0.19; // of a segment
constexpr double kMargin = 5.0;     // pixels between frame and digits

/// Bits: top, upper left, upper right, middle, lower left, lower right, bottom.
constexpr std::array<unsigned char, 10> kDigits{0x77, 0x24, 0x5d, 0x6d, 0x2e, 0x6b, 0x7b, 0x25, 0x7f, 0x6f};
constexpr unsigned char kMinus = 0x08;

bool isNarrow(QChar character)
{
    return character == '.' || character == ':' || character == ' ';
}

void paintSegments(QPainter& painter, unsigned bits, const QRectF& box, double thick)
{
    const double gap = thick * 0.15, half = box.height() / 2, low = box.top() + half - thick / 2;
    const QRectF across(box.left() + gap, 0, box.width() - 2 * gap, thick), upright(0, 0, thick, half - thick / 2 - 2 * gap);
    const std::array<QPointF, 7> places{{{across.left(), box.top()},
                                         {box.left(), box.top() + thick / 2 + gap},
                                         {box.right() - thick, box.top() + thick / 2 + gap},
                                         {across.left(), low},
                                         {box.left(), box.top() + half + gap},
                                         {box.right() - thick, box.top() + half + gap},
                                         {across.left(), box.bottom() - thick}}};
    constexpr unsigned kAcross = 0x49;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (bits >> i & 1U)
            painter.fillRect(QRectF(places[i], (kAcross >> i & 1U ? across : upright).size()), painter.pen().color());
    }
}

void paintDots(QPainter& painter, QChar character, const QRectF& box, double thick)
{
    const double size = thick * 1.2;
    const auto dot = [&](double y) { painter.fillRect(QRectF(box.center().x() - size / 2, y, size, size), painter.pen().color()); };
    if (character == '.')
        dot(box.bottom() - size);
    for (const double share : {0.3, 0.7}) {
        if (character == ':')
            dot(box.top() + share * box.height() - size / 2);
    }
}

} // namespace

SegmentClock::SegmentClock(const char* name, QWidget* pParent) : QFrame(pParent)
{
    AccessibleText::give(*this, [this] { return mText; });
    setObjectName(name);
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
}

void SegmentClock::display(const QString& text)
{
    if (mText == text)
        return;
    mText = text;
    update();
}

void SegmentClock::paintEvent(QPaintEvent* pEvent)
{
    QFrame::paintEvent(pEvent);
    double advances = kDigit - 1.0;
    for (const QChar character : mText)
        advances += isNarrow(character) ? kPoint : 1.0;
    const QRectF room = QRectF(contentsRect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (advances <= 0.0 || room.isEmpty())
        return;
    const double unit = std::min(room.width() / advances, room.height() / kHeight);
    const double height = std::min(kHeight * unit, room.height());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::WindowText));
    double x = room.center().x() - advances * unit / 2;
    for (const QChar character : mText) {
        const double advance = isNarrow(character) ? kPoint * unit : unit;
        const QRectF box(x, room.center().y() - height / 2, isNarrow(character) ? advance - (1 - kDigit) * unit : kDigit * unit, height);
        const double middle = character == '1' ? (kThickness - kDigit) / 2 * unit : 0.0; // it would leave a hole
        if (character.isDigit())
            paintSegments(painter, kDigits[static_cast<std::size_t>(character.digitValue())], box.translated(middle, 0), kThickness * unit);
        else if (character == '-')
            paintSegments(painter, kMinus, box, kThickness * unit);
        else
            paintDots(painter, character, box, kThickness * unit);
        x += advance;
    }
}

} // namespace ZARN
