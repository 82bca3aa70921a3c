#include "export/ui/ColourButton.h"

#include <QColorDialog>
#include <QPainter>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kOpaque = 255;
constexpr QSize kSwatch(28, 16);

} // namespace

ColourButton::ColourButton(const QString& chooser, EOpacity opacity, QWidget* pParent)
    : QPushButton(pParent), mChooser(chooser), mOpacity(opacity)
{
    setIconSize(kSwatch);
    connect(this, &QPushButton::clicked, this, &ColourButton::slotChoose);
}

void ColourButton::setColour(const std::string& digits, int alpha)
{
    mDigits = digits;
    mAlpha = std::clamp(alpha, 0, kOpaque);
    QColor colour(QString::fromStdString("#" + mDigits));
    colour.setAlpha(mAlpha);
    show(colour);
}

void ColourButton::show(const QColor& colour)
{
    QPixmap swatch(kSwatch * devicePixelRatio());
    swatch.setDevicePixelRatio(devicePixelRatio());
    swatch.fill(Qt::white);
    QPainter painter(&swatch);
    const QRect frame(QPoint(0, 0), kSwatch - QSize(1, 1));
    painter.fillRect(frame, QBrush(Qt::gray, Qt::Dense5Pattern)); // what is not opaque lets it through
    painter.fillRect(frame, colour);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(frame);
    painter.end();
    setIcon(swatch);
    const QString name = "#" + QString::fromStdString(mDigits);
    setText(mOpacity == eWithOpacity ? tr("%1, opacity %2 %").arg(name).arg(qRound(mAlpha * 100.0 / kOpaque)) : name);
}

void ColourButton::slotChoose()
{
    QColor colour(QString::fromStdString("#" + mDigits));
    if (!colour.isValid())
        colour = Qt::white;
    colour.setAlpha(mAlpha);
    QColorDialog::ColorDialogOptions options = QColorDialog::DontUseNativeDialog;
    options.setFlag(QColorDialog::ShowAlphaChannel, mOpacity == eWithOpacity);
    colour = QColorDialog::getColor(colour, this, mChooser, options);
    if (colour.isValid())
        setColour(colour.name().mid(1).toStdString(), mOpacity == eWithOpacity ? colour.alpha() : mAlpha);
}

} // namespace ZARN
