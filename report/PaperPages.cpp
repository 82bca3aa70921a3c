#include "report/PaperPages.h"

#include "app/Progress.h"
#include "report/PaperStyle.h"
#include "report/ReportText.h"

#include <QPainter>
#include <QPdfWriter>

namespace ZARN {

namespace {

constexpr double kMargin = 40.0; // points
constexpr double kTop = 50.0;
constexpr double kHeadLine = 30.0; // where the head stands

CanvasText smallText(Qt::Alignment align = Qt::AlignLeft | Qt::AlignTop)
{
    return {7.0, PaperStyle::colours().quiet, false, align, false};
}

} // namespace

PaperPages::PaperPages(const QSizeF& page, QString head, QString foot)
    : mHead(printable(head)), mFoot(printable(foot)), mRight(page.width() - kMargin),
      mBottom(page.height() - kMargin - 2 * PaperStyle::kLine), mY(kTop), mPages(1)
{
}

double PaperPages::left() const
{
    return kMargin;
}

bool PaperPages::isAtTop() const
{
    return mY <= kTop;
}

double PaperPages::mostRoom() const
{
    return mBottom - kTop;
}

void PaperPages::reserve(double height)
{
    if (mY + height <= mBottom || isAtTop())
        return;
    mPages.emplace_back();
    mY = kTop;
}

void PaperPages::text(double x, const QString& text, const CanvasText& style, double width)
{
    draw([at = QPointF(x, mY), shown = PaperCanvas::shortened(printable(text), width, style), style](QPainter&, PaperCanvas& canvas) {
        canvas.text(at, shown, style);
    });
}

void PaperPages::rule(double y)
{
    draw([line = std::vector<QPointF>{{left(), y}, {mRight, y}}](QPainter&, PaperCanvas& canvas) {
        canvas.lines(line, {PaperStyle::colours().rule, 0.5});
    });
}

void PaperPages::drawFrame(PaperCanvas& canvas, const QString& number) const
{
    const CanvasText small = smallText();
    const double foot = mBottom + PaperStyle::kLine;
    const double rest = width() - PaperCanvas::size(number, small).width() - PaperStyle::kGap;
    canvas.text({left(), kHeadLine}, PaperCanvas::shortened(mHead, width(), small), small);
    canvas.lines(std::vector<QPointF>{{left(), foot - 3}, {mRight, foot - 3}}, {PaperStyle::colours().rule, 0.5});
    canvas.text({left(), foot}, PaperCanvas::shortened(mFoot, rest, small), small);
    canvas.text({mRight, foot}, number, smallText(Qt::AlignRight | Qt::AlignTop));
}

bool PaperPages::write(QPdfWriter& writer, const QString& pageOf, Progress& progress) const
{
    QPainter painter(&writer);
    PaperCanvas canvas(painter);
    for (std::size_t i = 0; i < mPages.size(); ++i) {
        if (i > 0)
            writer.newPage();
        drawFrame(canvas, pageOf.arg(QString::number(i + 1), QString::number(mPages.size())));
        for (const Drawing& drawing : mPages[i]) {
            if (progress.isCancelled())
                return false;
            drawing(painter, canvas);
        }
        progress.setProgress(static_cast<int>(50 + (i + 1) * 50 / mPages.size()));
    }
    return true;
}

} // namespace ZARN
