#pragma once

#include "profile/ProfileModel.h"

#include <QDialog>

#include <memory>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QSpinBox;
class QToolButton;

namespace ZARN {

/// Edits the user's computed parameters: a list, and the one that is chosen beside it. What cannot be computed is told while it is typed,
/// with its place. Changes nothing by itself: its owner takes formulas() when it was accepted.
class DialogFormulas : public QDialog {
    Q_OBJECT

public:
    /// @param pProfile without formulas  @param examples that can be added with a click; those that the profile cannot compute are left out
    DialogFormulas(FormulaDefinitions formulas, std::shared_ptr<const ProfileModel> pProfile, const FormulaDefinitions& examples,
                   QWidget* pParent = nullptr);

    [[nodiscard]] const FormulaDefinitions& formulas() const { return mFormulas; }

private Q_SLOTS:
    void slotChosen(int row);
    void slotEdited();
    void slotAdd();
    void slotRemove();

private:
    [[nodiscard]] QWidget* createList(const FormulaDefinitions& examples);
    [[nodiscard]] QWidget* createForm();
    [[nodiscard]] QToolButton* createParameters();
    void addExamples(QToolButton& button, const FormulaDefinitions& examples);
    [[nodiscard]] QLineEdit* addLimit(const QString& name, std::optional<double> FormulaDefinition::*pMember);
    void add(FormulaDefinition formula);
    void move(int by);
    void showProblems();
    [[nodiscard]] int row() const;

    struct Limit {
        QLineEdit* pEdit;
        std::optional<double> FormulaDefinition::*pMember;
    };

    FormulaDefinitions mFormulas;
    FormulaDefinitions mWrongBefore; ///< as they were given, of another profile: they must not keep others from being taken
    const std::shared_ptr<const ProfileModel> mpProfile;
    QListWidget* mpList;
    QWidget* mpForm = nullptr;
    QLineEdit* mpName = nullptr;
    QPlainTextEdit* mpExpression = nullptr;
    QLineEdit* mpUnit = nullptr;
    QSpinBox* mpPrecision = nullptr;
    std::vector<Limit> mLimits;
    QLabel* mpProblem;
    QDialogButtonBox* mpButtons;
    bool mIsFilling = false;
};

} // namespace ZARN
