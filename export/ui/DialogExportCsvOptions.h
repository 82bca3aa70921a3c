#pragma once

#include "app/Settings.h"

#include <QWizardPage>

#include <cstdint>

class QComboBox;
class QLabel;

namespace ZARN {

/// The CSV wizard's second page: separator, time step, and which parameters become columns.
class DialogExportCsvOptions : public QWizardPage {
    Q_OBJECT

public:
    explicit DialogExportCsvOptions(QWidget* pParent = nullptr);

    /// A value that no list offers stands for the list's first.
    void setOptions(int separator, int resolution, bool allParameters);
    [[nodiscard]] char separator() const { return mSeparator; }
    [[nodiscard]] uint32_t resolution() const { return mResolution; }
    [[nodiscard]] bool allParameters() const { return mAllParameters; }

    /// What the user should know before the file is written.
    void setNote(const QString& text);

Q_SIGNALS:
    void signalChanged();

private Q_SLOTS:
    void slotLimiter(int index);
    void slotResolution(int index);
    void slotParameter(int index);

private:
    QComboBox* mpLimiter;
    QComboBox* mpResolution;
    QComboBox* mpParameter;
    QLabel* mpNote;
    char mSeparator = static_cast<char>(Settings::kCsvLimiter.fallback);
    uint32_t mResolution = Settings::kCsvResolution.fallback;
    bool mAllParameters = Settings::kCsvAllParameter.fallback;
};

} // namespace ZARN
