#pragma once

#include "export/ui/ExportPart.h"

#include <QWizardPage>

#include <vector>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace ZARN {

class CardContainer;

/// The page of an export's wizard that takes what is exported, folder and file name, and lets its user go on only when that file can be written. An
/// existing file is asked about once.
class ExportPathPage : public QWizardPage {
    Q_OBJECT

public:
    /// @param chooser title of the window that chooses a folder.
    ExportPathPage(const CardContainer& card, const QString& chooser, QWidget* pParent = nullptr);

    void setTarget(const QString& directory, const QString& name);
    /// What can be exported, the first being chosen. None or a single one leaves no choice.
    void setParts(const std::vector<ExportPart>& parts);
    [[nodiscard]] std::optional<TimeSpan> span() const; ///< of the chosen part
    /// How large the file of that part will be, for people.
    void setSize(const QString& text);
    [[nodiscard]] QString directory() const; ///< absolute
    [[nodiscard]] QString fileName() const;

    [[nodiscard]] bool isComplete() const override;
    bool validatePage() override;

Q_SIGNALS:
    void signalPart();

private Q_SLOTS:
    void slotChoose();
    void slotChanged();
    void slotPart(int index);

private:
    [[nodiscard]] bool mayReplace(const QString& path);

    const CardContainer& mCard;
    QString mChooser;
    std::vector<ExportPart> mParts;
    QFormLayout* mpForm;
    QComboBox* mpPart;
    QLabel* mpSize;
    QLineEdit* mpDirectory;
    QLineEdit* mpName;
    QLabel* mpProblem;
    QString mReplaced; // the file that may be replaced
};

} // namespace ZARN
