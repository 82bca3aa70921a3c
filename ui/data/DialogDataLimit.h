#pragma once

#include "ui/data/DialogDataEvents.h"

namespace ZARN {

/// The list of every moment at which a parameter entered a warning or limit band.
class DialogDataLimit : public DialogDataEvents {
    Q_OBJECT

public:
    explicit DialogDataLimit(const Session& session, QWidget* pParent = nullptr);
};

} // namespace ZARN
