#pragma once

#include "export/ui/ExportPathPage.h"

namespace ZARN {

/// The CSV wizard's first page: folder and file name.
class DialogExportCsvPath : public ExportPathPage {
    Q_OBJECT

public:
    explicit DialogExportCsvPath(const CardContainer& card, QWidget* pParent = nullptr) : ExportPathPage(card, tr("Save CSV Export"), pParent) {}
};

} // namespace ZARN
