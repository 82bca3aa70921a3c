#pragma once

#include "ui/data/DialogDataEvents.h"

namespace ZARN {

/// The list of every lighting-up of a warning lamp.
class DialogDataWarning : public DialogDataEvents {
    Q_OBJECT

public:
    explicit DialogDataWarning(const Session& session, QWidget* pParent = nullptr);
};

} // namespace ZARN
