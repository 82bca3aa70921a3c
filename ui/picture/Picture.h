#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>

class QPrinter;

namespace ZARN {

class Canvas;

/// The picture of a drawn view, as pixels, and as a file: SVG and PDF as lines, every other format that the toolkit can write as pixels.
/// The old file stays when anything fails.
class Picture {
public:
    /// @param forPaper in the colours of paper, else as the view has them
    using Paint = std::function<void(Canvas& canvas, const QSize& size, bool forPaper)>;

    /// @param ratio pixels of a pixel picture for each of the view's
    Picture(Paint paint, const QSize& size, double ratio) : mPaint(std::move(paint)), mSize(size), mRatio(ratio) {}

    /// What a drawing says that it is of, and a sheet of paper above it.
    void setTitle(const QString& title) { mTitle = title; }
    /// @param path the suffix chooses the format; without one it is BMP. @return false with error() set
    bool save(const QString& path);
    [[nodiscard]] const QString& error() const { return mError; }
    [[nodiscard]] QImage image() const;
    /// Fills the page. @return false when the printer takes nothing
    bool print(QPrinter& printer) const;

private:
    void paintSheet(Canvas& canvas, const QSize& size) const;
    [[nodiscard]] int heading() const;
    [[nodiscard]] QByteArray svg() const;
    [[nodiscard]] QByteArray pdf() const;
    QByteArray pixels(const QString& format);

    Paint mPaint;
    QSize mSize;
    double mRatio;
    QString mTitle;
    QString mError;
};

} // namespace ZARN
