#include "ui/data/SpeedBox.h"

#include "ui/data/model/ReplaySpeed.h"

namespace ZARN {

SpeedBox::SpeedBox(QWidget* pParent) : DecimalBox(pParent)
{
    setRange(kSlowestReplay, kFastestReplay);
}

void SpeedBox::stepBy(int steps)
{
    interpretText();
    setValue(steppedSpeed(value(), steps));
}

} // namespace ZARN
