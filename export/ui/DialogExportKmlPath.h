#pragma once

#include "export/ui/ExportPathPage.h"

namespace ZARN {

/// The KML wizard's first page: folder and file name.
class DialogExportKmlPath : public ExportPathPage {
    Q_OBJECT

public:
    explicit DialogExportKmlPath(const CardContainer& card, QWidget* pParent = nullptr) : ExportPathPage(card, tr("Save KML Export"), pParent) {}
};

} // namespace ZARN
