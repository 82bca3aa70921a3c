#include "app/gui/FormLayout.h"

namespace ZARN {

void FormLayout::setGeometry(const QRect& rect)
{
    QFormLayout::setGeometry(rect);
    constexpr int kLines = 3; // a field of that many is no line of text: its label stands at its top
    for (int row = 0; row < rowCount(); ++row) {
        QLayoutItem* pLabel = itemAt(row, LabelRole);
        const QLayoutItem* pField = itemAt(row, FieldRole);
        if (!pLabel || !pField || pField->isEmpty() || pField->geometry().height() >= kLines * pLabel->sizeHint().height())
            continue;
        const QRect label = pLabel->geometry(), field = pField->geometry();
        pLabel->setGeometry(QRect(label.x(), field.y(), label.width(), field.height()));
    }
}

} // namespace ZARN
