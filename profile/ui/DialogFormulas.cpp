#include "profile/ui/DialogFormulas.h"

#include "app/gui/FormLayout.h"
#include "trace/FormulaCheck.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace ZARN {

namespace {

constexpr int kMostDigits = 6;
constexpr int kExpressionLines = 4;

QToolButton* createButton(const char* name, const QString& text, QBoxLayout& layout)
{
    auto* pButton = new QToolButton;
    pButton->setObjectName(name);
    pButton->setText(text);
    pButton->setFocusPolicy(Qt::StrongFocus);
    layout.addWidget(pButton);
    return pButton;
}

/// The chosen language's way of writing numbers, or the one with a point. Separators of thousands are refused: what is one of them in one
/// way is the decimal point of the other, and a limit would be off a thousandfold. @return NaN for what is no number, none for nothing
std::optional<double> numberIn(const QString& written)
{
    const QString text = written.trimmed();
    if (text.isEmpty())
        return std::nullopt;
    bool isOwn = false, isPointed = false, isGrouped = false;
    QLocale locale;
    std::ignore = locale.toDouble(text, &isGrouped);
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    const double own = locale.toDouble(text, &isOwn);
    const double pointed = text.toDouble(&isPointed);
    const double value = isOwn ? own : pointed;
    const bool isNumber = isOwn || (isPointed && !isGrouped);
    return isNumber && std::isfinite(value) ? value : std::numeric_limits<double>::quiet_NaN();
}

QString writtenNumber(const std::optional<double>& number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return number ? locale.toString(*number, 'g', QLocale::FloatingPointShortest) : QString();
}

} // namespace

DialogFormulas::DialogFormulas(FormulaDefinitions formulas, std::shared_ptr<const ProfileModel> pProfile, const FormulaDefinitions& examples,
                               QWidget* pParent)
    : QDialog(pParent), mFormulas(std::move(formulas)), mpProfile(std::move(pProfile)), mpList(new QListWidget),
      mpProblem(new QLabel), mpButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("Formulas"));
    mpForm = createForm();
    mpProblem->setObjectName("problem");
    mpProblem->setWordWrap(true);
    mpProblem->setTextFormat(Qt::PlainText);
    auto* pSides = new QHBoxLayout;
    pSides->addWidget(createList(examples), 1);
    pSides->addWidget(mpForm, 2);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pSides);
    pLayout->addWidget(mpProblem);
    pLayout->addWidget(mpButtons);
    connect(mpButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(mpButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (std::size_t i = 0; i < mFormulas.size(); ++i) {
        mpList->addItem(QString::fromStdString(mFormulas[i].name));
        if (checkFormula(mFormulas, i, *mpProfile))
            mWrongBefore.push_back(mFormulas[i]);
    }
    connect(mpList, &QListWidget::currentRowChanged, this, &DialogFormulas::slotChosen);
    mpList->setCurrentRow(0);
    slotChosen(row());
    resize(sizeHint().expandedTo(QSize(760, 420)));
}

QWidget* DialogFormulas::createList(const FormulaDefinitions& examples)
{
    auto* pSide = new QWidget;
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins(0, 0, 0, 0);
    mpList->setObjectName("formulas");
    mpList->setAccessibleName(tr("Formulas"));
    pLayout->addWidget(mpList);
    auto* pButtons = new QHBoxLayout;
    pLayout->addLayout(pButtons);
    connect(createButton("add", tr("New"), *pButtons), &QToolButton::clicked, this, &DialogFormulas::slotAdd);
    connect(createButton("remove", tr("Remove"), *pButtons), &QToolButton::clicked, this, &DialogFormulas::slotRemove);
    QToolButton* pUp = createButton("up", tr("Up"), *pButtons);
    QToolButton* pDown = createButton("down", tr("Down"), *pButtons);
    pUp->setArrowType(Qt::UpArrow); // in place of words, which made the window wider than small screens with large text
    pDown->setArrowType(Qt::DownArrow);
    for (QToolButton* pButton : {pUp, pDown})
        pButton->setToolTip(pButton->text());
    connect(pUp, &QToolButton::clicked, this, [this] { move(-1); });
    connect(pDown, &QToolButton::clicked, this, [this] { move(1); });
    addExamples(*createButton("examples", tr("Examples"), *pButtons), examples);
    pButtons->addStretch();
    return pSide;
}

void DialogFormulas::addExamples(QToolButton& button, const FormulaDefinitions& examples)
{
    auto* pMenu = new QMenu(&button);
    for (std::size_t i = 0; i < examples.size(); ++i) {
        if (!checkFormula(examples, i, *mpProfile))
            connect(pMenu->addAction(QString::fromStdString(examples[i].name)), &QAction::triggered, this,
                    [this, example = examples[i]] { add(example); });
    }
    button.setMenu(pMenu);
    button.setPopupMode(QToolButton::InstantPopup);
    button.setEnabled(!pMenu->isEmpty());
}

QWidget* DialogFormulas::createForm()
{
    auto* pForm = new QWidget;
    auto* pLayout = new FormLayout(pForm);
    pLayout->setContentsMargins(0, 0, 0, 0);
    mpName = new QLineEdit;
    mpName->setObjectName("name");
    mpExpression = new QPlainTextEdit;
    mpExpression->setObjectName("expression");
    mpExpression->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    mpExpression->setTabChangesFocus(true);
    mpExpression->setMinimumHeight(mpExpression->fontMetrics().lineSpacing() * kExpressionLines);
    mpExpression->setToolTip(tr("Names of parameters in quotes, numbers with a point, + - * / ^ < > == && || ? :\n"
                                "min, max, abs, sqrt, sin, ...; t is the time in seconds\n"
                                "delta(x): change since the sample before\nintegral(x): sum of x times seconds\n"
                                "avg(x, s): mean of the last s seconds\nlag(x, s): x as it was s seconds ago"));
    mpUnit = new QLineEdit;
    mpUnit->setObjectName("unit");
    mpPrecision = new QSpinBox;
    mpPrecision->setObjectName("precision");
    mpPrecision->setRange(0, kMostDigits);
    pLayout->addRow(tr("Name:"), mpName);
    pLayout->addRow(tr("Formula:"), mpExpression);
    pLayout->addRow(QString(), createParameters());
    pLayout->addRow(tr("Unit:"), mpUnit);
    pLayout->addRow(tr("Decimals:"), mpPrecision);
    pLayout->addRow(tr("Limit up to:"), addLimit("lowerLimit", &FormulaDefinition::lowerLimit));
    pLayout->addRow(tr("Warning up to:"), addLimit("lowerWarning", &FormulaDefinition::lowerWarning));
    pLayout->addRow(tr("Warning from:"), addLimit("upperWarning", &FormulaDefinition::upperWarning));
    pLayout->addRow(tr("Limit from:"), addLimit("upperLimit", &FormulaDefinition::upperLimit));
    for (QLineEdit* pEdit : {mpName, mpUnit})
        connect(pEdit, &QLineEdit::textChanged, this, &DialogFormulas::slotEdited);
    connect(mpExpression, &QPlainTextEdit::textChanged, this, &DialogFormulas::slotEdited);
    connect(mpPrecision, &QSpinBox::valueChanged, this, &DialogFormulas::slotEdited);
    return pForm;
}

QLineEdit* DialogFormulas::addLimit(const QString& name, std::optional<double> FormulaDefinition::*pMember)
{
    auto* pEdit = new QLineEdit;
    pEdit->setObjectName(name);
    pEdit->setPlaceholderText(tr("none"));
    mLimits.push_back({pEdit, pMember});
    connect(pEdit, &QLineEdit::textChanged, this, &DialogFormulas::slotEdited);
    return pEdit;
}

/// A menu of all parameters by device: a click writes the name where the cursor is.
QToolButton* DialogFormulas::createParameters()
{
    auto* pButton = new QToolButton;
    pButton->setObjectName("parameters");
    pButton->setText(tr("Insert Parameter"));
    pButton->setFocusPolicy(Qt::StrongFocus);
    pButton->setPopupMode(QToolButton::InstantPopup);
    auto* pMenu = new QMenu(pButton);
    for (const ProfileDevice& device : mpProfile->devices) {
        QMenu* pDevice = pMenu->addMenu(QString::fromStdString(device.name).replace("&", "&&"));
        for (const ProfileParameter& parameter : device.parameters) {
            const QString name = QString::fromStdString(parameter.name);
            const QString quote = name.contains('"') ? "'" : "\"";
            connect(pDevice->addAction(QString(name).replace("&", "&&")), &QAction::triggered, this, [this, text = quote + name + quote] {
                mpExpression->insertPlainText(text);
                mpExpression->setFocus();
            });
        }
    }
    pButton->setMenu(pMenu);
    return pButton;
}

int DialogFormulas::row() const
{
    return mpList->currentRow();
}

void DialogFormulas::slotChosen(int row)
{
    mIsFilling = true;
    const bool isOne = row >= 0 && row < static_cast<int>(mFormulas.size());
    const FormulaDefinition formula = isOne ? mFormulas[static_cast<std::size_t>(row)] : FormulaDefinition();
    mpForm->setEnabled(isOne);
    mpName->setText(QString::fromStdString(formula.name));
    mpExpression->setPlainText(QString::fromStdString(formula.expression));
    mpUnit->setText(QString::fromStdString(formula.unit));
    mpPrecision->setValue(formula.precision);
    for (const Limit& limit : mLimits)
        limit.pEdit->setText(writtenNumber(formula.*limit.pMember));
    mIsFilling = false;
    showProblems();
}

void DialogFormulas::slotEdited()
{
    if (mIsFilling || row() < 0)
        return;
    FormulaDefinition& formula = mFormulas[static_cast<std::size_t>(row())];
    formula.name = mpName->text().trimmed().toStdString();
    formula.expression = mpExpression->toPlainText().toStdString();
    formula.unit = mpUnit->text().trimmed().toStdString();
    formula.precision = mpPrecision->value();
    for (const Limit& limit : mLimits)
        formula.*limit.pMember = numberIn(limit.pEdit->text());
    mpList->currentItem()->setText(QString::fromStdString(formula.name));
    showProblems();
}

void DialogFormulas::add(FormulaDefinition formula)
{
    mpList->addItem(QString::fromStdString(formula.name));
    mFormulas.push_back(std::move(formula));
    mpList->setCurrentRow(mpList->count() - 1);
}

void DialogFormulas::slotAdd()
{
    add({});
    mpName->setFocus();
}

void DialogFormulas::slotRemove()
{
    const int place = row();
    if (place < 0)
        return;
    mFormulas.erase(mFormulas.begin() + place);
    const QSignalBlocker quiet(mpList);
    delete mpList->takeItem(place);
    slotChosen(row());
}

void DialogFormulas::move(int by)
{
    const int from = row(), to = from + by;
    if (from < 0 || to < 0 || to >= mpList->count())
        return;
    std::swap(mFormulas[static_cast<std::size_t>(from)], mFormulas[static_cast<std::size_t>(to)]);
    const QSignalBlocker quiet(mpList);
    mpList->insertItem(to, mpList->takeItem(from));
    mpList->setCurrentRow(to);
    slotChosen(to);
}

/// What is wrong with the chosen one, or with the first that is: all must be right before they are taken, but for those that were given so,
/// of another profile.
void DialogFormulas::showProblems()
{
    QString text;
    bool isWrong = false;
    for (std::size_t i = 0; i < mFormulas.size(); ++i) {
        std::optional<FormulaProblem> problem = checkFormula(mFormulas, i, *mpProfile);
        mpList->item(static_cast<int>(i))->setIcon(problem ? style()->standardIcon(QStyle::SP_MessageBoxWarning) : QIcon());
        if (!problem)
            continue;
        isWrong |= std::ranges::find(mWrongBefore, mFormulas[i]) == mWrongBefore.end();
        const QString name = QString::fromStdString(mFormulas[i].name);
        const QString told = problem->field == FormulaProblem::EField::eExpression
                                 ? tr("%1: character %2: %3").arg(name, QString::number(problem->place + 1), problem->text)
                                 : tr("%1: %2").arg(name, problem->text);
        if (text.isEmpty() || static_cast<int>(i) == row())
            text = told;
    }
    mpProblem->setText(mFormulas.empty() ? tr("Begin with an example, or with an empty formula by \"New\".") : text);
    mpButtons->button(QDialogButtonBox::Ok)->setEnabled(!isWrong);
}

} // namespace ZARN
