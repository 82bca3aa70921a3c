#pragma once

#include <QWizardPage>

class QLabel;
class QLineEdit;

namespace ZARN {

/// The page of an export's wizard that takes folder and file name, and lets its user go on only when that file can be written. An
/// existing file is asked about once.
class ExportPathPage : public QWizardPage {
    Q_OBJECT

public:
    /// @param chooser title of the window that chooses a folder.
    explicit ExportPathPage(const QString& chooser, QWidget* pParent = nullptr);

    void setTarget(const QString& directory, const QString& name);
    [[nodiscard]] QString directory() const; ///< absolute
    [[nodiscard]] QString fileName() const;

    [[nodiscard]] bool isComplete() const override;
    bool validatePage() override;

private Q_SLOTS:
    void slotChoose();
    void slotChanged();

private:
    [[nodiscard]] bool mayReplace(const QString& path);

    QString mChooser;
    QLineEdit* mpDirectory;
    QLineEdit* mpName;
    QLabel* mpProblem;
    QString mReplaced; // the file that may be replaced
};

} // namespace ZARN
