#pragma once

#include "report/PaperCanvas.h"

#include <functional>
#include <vector>

class QPdfWriter;

namespace ZARN {

class Progress;

/// Pages that are laid out before any is drawn, since each says how many there are: from the top down, in points, going on with the next one
/// where there is no room. Each has a head and a foot.
class PaperPages {
public:
    using Drawing = std::function<void(QPainter&, PaperCanvas&)>;

    PaperPages(const QSizeF& page, QString head, QString foot);

    [[nodiscard]] double left() const;
    [[nodiscard]] double right() const { return mRight; }
    [[nodiscard]] double width() const { return mRight - left(); }
    [[nodiscard]] double y() const { return mY; }
    [[nodiscard]] bool isAtTop() const;
    [[nodiscard]] double room() const { return mBottom - mY; } ///< what is left of this page
    [[nodiscard]] double mostRoom() const;                     ///< of an empty one
    [[nodiscard]] std::size_t count() const { return mPages.size(); }

    /// Begins the next page unless this one has room for that; an empty page is never left.
    void reserve(double height);
    void advance(double points) { mY += points; }
    /// A text from elsewhere at the height reached; it is cut where it would be wider than that.
    void text(double x, const QString& text, const CanvasText& style, double width);
    void rule(double y);
    void draw(Drawing drawing) { mPages.back().push_back(std::move(drawing)); }

    /// @param pageOf the number of a page and how many there are, "%1 of %2". @return false when it was cancelled
    bool write(QPdfWriter& writer, const QString& pageOf, Progress& progress) const;

private:
    void drawFrame(PaperCanvas& canvas, const QString& number) const;

    QString mHead;
    QString mFoot;
    double mRight;
    double mBottom;
    double mY = 0.0;
    std::vector<std::vector<Drawing>> mPages;
};

} // namespace ZARN
