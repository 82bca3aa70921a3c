#pragma once

#include "analysis/CycleReview.h"

#include <QWidget>

namespace ZARN {

/// The sign of a verdict, told by shape as well as by colour: a disc with a tick, a triangle, an octagon, a ring with a question mark. As
/// large as its text is high, times a factor.
class VerdictMark : public QWidget {
    Q_OBJECT

public:
    explicit VerdictMark(EVerdict verdict, double size, QWidget* pParent = nullptr);

    /// The sign's colour, of which its card has a bar.
    [[nodiscard]] static QColor colour(EVerdict verdict);
    /// The verdict that an incident of that state makes.
    [[nodiscard]] static EVerdict ofState(int state) { return state >= 2 ? EVerdict::eLimit : EVerdict::eWarning; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    const EVerdict mVerdict;
    const double mSize;
};

} // namespace ZARN
