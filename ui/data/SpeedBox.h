#pragma once

#include "app/gui/DecimalBox.h"

namespace ZARN {

/// The entry for the replay's speed: steps that lead somewhere.
class SpeedBox : public DecimalBox {
    Q_OBJECT

public:
    explicit SpeedBox(QWidget* pParent = nullptr);

protected:
    void stepBy(int steps) override;
};

} // namespace ZARN
