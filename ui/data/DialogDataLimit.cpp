#include "ui/data/DialogDataLimit.h"

#include "analysis/LimitEvents.h"
#include "ui/data/model/ShownParameter.h"

namespace ZARN {

DialogDataLimit::DialogDataLimit(const Session& session, QWidget* pParent)
    : DialogDataEvents(
          session,
          {limitEvents, ShownParameter::stateName, tr("Warning/Limit Exceed"), tr("No parameter entered a warning or limit band.")},
          pParent)
{
}

} // namespace ZARN
