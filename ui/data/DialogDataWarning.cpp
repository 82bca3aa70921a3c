#include "ui/data/DialogDataWarning.h"

#include "analysis/WarningEvents.h"

namespace ZARN {

DialogDataWarning::DialogDataWarning(const Session& session, QWidget* pParent)
    : DialogDataEvents(
          session,
          {warningEvents, [](int state) { return tr("Lamp state %1").arg(state); }, tr("WarningLamp"), tr("No warning lamp lit up.")},
          pParent)
{
}

} // namespace ZARN
