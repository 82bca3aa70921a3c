#pragma once

#include "app/Settings.h"

#include <QWizardPage>

#include <cstdint>

class QComboBox;
class QLabel;

namespace ZARN {

/// The CSV wizard's second page: the form of the table, time step, and which parameters become columns.
class DialogExportCsvOptions : public QWizardPage {
    Q_OBJECT

public:
    explicit DialogExportCsvOptions(QWidget* pParent = nullptr);

    /// A value that no list offers stands for the list's first.
    /// @param locale as CsvForm takes it
    void setOptions(int separator, int resolution, bool allParameters, const QString& locale);
    [[nodiscard]] QString locale() const;
    [[nodiscard]] char separator() const { return mSeparator; }
    [[nodiscard]] uint32_t resolution() const { return mResolution; }
    [[nodiscard]] bool allParameters() const { return mAllParameters; }

    /// What the user should know before the file is written, and how large it will be.
    void setOutlook(const QString& note, const QString& size);

Q_SIGNALS:
    void signalChanged();

private Q_SLOTS:
    void slotForm();
    void slotLimiter(int index);
    void slotResolution(int index);
    void slotParameter(int index);

private:
    void addForm(const QString& locale);

    QComboBox* mpForm;
    QComboBox* mpLimiter;
    QComboBox* mpResolution;
    QComboBox* mpParameter;
    QLabel* mpSize;
    QLabel* mpNote;
    char mSeparator = static_cast<char>(Settings::kCsvLimiter.fallback);
    uint32_t mResolution = Settings::kCsvResolution.fallback;
    bool mAllParameters = Settings::kCsvAllParameter.fallback;
};

} // namespace ZARN
