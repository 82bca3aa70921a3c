#pragma once

#include "app/gui/DecimalBox.h"

namespace ZARN {

/// An entry for a value of whatever parameter: no more decimals are shown than it has, and the wheel changes it only when it has the focus.
class ValueBox : public DecimalBox {
    Q_OBJECT

public:
    ValueBox(double least, double most, QWidget* pParent = nullptr);

protected:
    [[nodiscard]] QString textFromValue(double value) const override;
};

} // namespace ZARN
