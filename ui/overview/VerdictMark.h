#pragma once

#include "ui/overview/model/VerdictSign.h"

#include <QWidget>

namespace ZARN {

/// The sign of a verdict as large as its text is high, times a factor.
class VerdictMark : public QWidget {
    Q_OBJECT

public:
    explicit VerdictMark(EVerdict verdict, double size, QWidget* pParent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    const EVerdict mVerdict;
    const double mSize;
};

} // namespace ZARN
