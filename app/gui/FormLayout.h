#pragma once

#include <QFormLayout>

namespace ZARN {

/// A form whose labels stand at the middle of their fields, and clear of them.
class FormLayout : public QFormLayout {
public:
    explicit FormLayout(QWidget* pParent = nullptr) : QFormLayout(pParent)
    {
        constexpr int kGap = 12;
        setLabelAlignment(labelAlignment() | Qt::AlignVCenter);
        setHorizontalSpacing(kGap);
    }
};

} // namespace ZARN
