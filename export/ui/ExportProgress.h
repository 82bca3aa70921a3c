#pragma once

#include "app/Progress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

namespace ZARN {

/// Shows how far an export is, with a button to end it, and keeps the windows alive meanwhile. Short work shows nothing. Everything but
/// its own window is out of the user's reach; timers run, so that nothing that the export reads may hang on one.
class ExportProgress : public Progress {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ExportProgress)

public:
    ExportProgress(const QString& text, QWidget* pWindow);

    void setProgress(int percent) override;
    [[nodiscard]] bool isCancelled() const override { return mDialog.wasCanceled(); }

private:
    QProgressDialog mDialog;
    QElapsedTimer mSinceBegin;
    QElapsedTimer mSincePainting;
};

} // namespace ZARN
