#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>

namespace ZARN {

class Canvas;

/// Writes the graph's picture to a file: SVG and PDF as lines, every other format that the toolkit can write as pixels. The old file
/// stays when anything fails.
class GraphSnapshot {
public:
    using Paint = std::function<void(Canvas& canvas, const QSize& size)>;

    /// @param ratio pixels of a pixel picture for each of the view's
    GraphSnapshot(Paint paint, const QSize& size, double ratio) : mPaint(std::move(paint)), mSize(size), mRatio(ratio) {}

    /// @param path the suffix chooses the format; without one it is BMP. @return false with error() set
    bool save(const QString& path);
    [[nodiscard]] const QString& error() const { return mError; }
    [[nodiscard]] QImage image() const;

private:
    [[nodiscard]] QByteArray svg() const;
    [[nodiscard]] QByteArray pdf() const;
    QByteArray pixels(const QString& format);

    Paint mPaint;
    QSize mSize;
    double mRatio;
    QString mError;
};

} // namespace ZARN
