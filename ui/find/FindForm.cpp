#include "ui/find/FindForm.h"

#include "app/gui/WheelGuard.h"
#include "ui/find/ValueBox.h"

#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kMost = 1e9;
constexpr double kLongest = 1e6; // seconds
constexpr int kNameLength = 9;
constexpr int kDigits = 6; // of a converted value
constexpr int kValueWidth = 9, kSecondsWidth = 5; // characters

void setWidth(QAbstractSpinBox& box, int characters)
{
    box.setFixedWidth(box.fontMetrics().horizontalAdvance(QString(characters, '0')) + 16);
}

} // namespace

FindForm::FindForm(QWidget* pParent)
    : QWidget(pParent), mpForms(new QStackedWidget), mpParameter(new QComboBox), mpSide(new QComboBox),
      mpValue(new ValueBox(-kMost, kMost)), mpUnit(new QLabel), mpExpression(new QLineEdit), mpSeconds(new ValueBox(0, kLongest))
{
    mpForms->addWidget(createChoices());
    mpExpression->setPlaceholderText(tr("\"Oil Temperature A\" > 110 && \"Engine Speed A\" > 4000"));
    mpExpression->setToolTip(tr("A formula of parameters, in metric units: names in quotation marks; < > <= >= == != && || and functions"));
    mpExpression->setAccessibleName(tr("Condition"));
    mpForms->addWidget(mpExpression);
    mpForms->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    mpSeconds->setAccessibleName(tr("For at least so many seconds"));
    setWidth(*mpSeconds, kSecondsWidth);
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(new QLabel(tr("Where is")));
    pLayout->addWidget(mpForms, 1);
    pLayout->addWidget(new QLabel(tr("for at least")));
    pLayout->addWidget(mpSeconds);
    pLayout->addWidget(new QLabel(tr("s")));
    connect(mpExpression, &QLineEdit::textChanged, this, &FindForm::signalChanged);
    connect(mpSeconds, &QDoubleSpinBox::valueChanged, this, &FindForm::signalChanged);
}

QWidget* FindForm::createChoices()
{
    mpParameter->setEditable(true);
    mpParameter->setInsertPolicy(QComboBox::NoInsert);
    mpParameter->completer()->setFilterMode(Qt::MatchContains);
    mpParameter->completer()->setCompletionMode(QCompleter::PopupCompletion);
    mpParameter->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mpParameter->setMinimumContentsLength(kNameLength);
    mpParameter->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    mpParameter->setAccessibleName(tr("Parameter"));
    mpSide->addItems({tr("above"), tr("below")});
    mpSide->setAccessibleName(tr("Above or below"));
    mpValue->setAccessibleName(tr("Value"));
    setWidth(*mpValue, kValueWidth);
    for (QComboBox* pBox : {mpParameter, mpSide})
        WheelGuard::install(*pBox);
    auto* pChoices = new QWidget;
    auto* pLayout = new QHBoxLayout(pChoices);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(mpParameter, 1);
    pLayout->addWidget(mpSide);
    pLayout->addWidget(mpValue);
    pLayout->addWidget(mpUnit);
    connect(mpParameter, &QComboBox::currentTextChanged, this, &FindForm::chooseParameter);
    connect(mpSide, &QComboBox::currentIndexChanged, this, [this] {
        if (!mTyped)
            suggestValue();
        Q_EMIT signalChanged();
    });
    connect(mpValue, &QDoubleSpinBox::valueChanged, this, [this] {
        mTyped = Typed{mpValue->value(), mContext};
        Q_EMIT signalChanged();
    });
    return pChoices;
}

void FindForm::setParameters(std::vector<FindParameter> parameters, const QString& preferred, const DecodingContext& context)
{
    const bool isOtherUnit = context.unit() != mContext.unit();
    mContext = context;
    mParameters = std::move(parameters);
    const QSignalBlocker quiet(mpParameter);
    const QString chosen = mpParameter->currentText();
    mpParameter->clear();
    for (const FindParameter& parameter : mParameters)
        mpParameter->addItem(parameter.name);
    if (const int same = mpParameter->findText(chosen); !chosen.isEmpty() && same < 0)
        mpParameter->setEditText(chosen); // another record may have it
    else
        mpParameter->setCurrentIndex(std::max(chosen.isEmpty() ? mpParameter->findText(preferred) : same, 0));
    if (isOtherUnit)
        convertValue();
    chooseParameter();
}

const FindParameter* FindForm::parameter() const
{
    const auto found = std::ranges::find(mParameters, mpParameter->currentText(), &FindParameter::name);
    return found == mParameters.end() ? nullptr : &*found;
}

void FindForm::chooseParameter()
{
    const FindParameter* pParameter = parameter();
    mpUnit->setText(pParameter ? pParameter->unit : QString());
    if (pParameter && mValued != pParameter->name)
        suggestValue();
    Q_EMIT signalChanged();
}

/// The parameter's own limit is what most look for.
void FindForm::suggestValue()
{
    const FindParameter* pParameter = parameter();
    if (!pParameter)
        return;
    const QSignalBlocker quiet(mpValue);
    mpValue->setValue((mpSide->currentIndex() == 0 ? pParameter->upper : pParameter->lower).value_or(0.0));
    mValued = pParameter->name;
    mTyped.reset();
}

/// The same in another unit. From what was typed, which comes back whole with its unit; where that cannot be converted the number would mean
/// something else.
void FindForm::convertValue()
{
    const auto value = mTyped ? FindCondition{mValued, true, mTyped->value}.valueIn(mContext.unit(), mTyped->context) : std::nullopt;
    if (!value)
        return mValued.clear();
    const bool isAsTyped = mContext.unit() == mTyped->context.unit();
    const QSignalBlocker quiet(mpValue);
    mpValue->setValue(isAsTyped ? *value : QString::number(*value, 'g', kDigits).toDouble());
}

QString FindForm::expression() const
{
    if (isFree())
        return mpExpression->text();
    return FindCondition{mpParameter->currentText(), mpSide->currentIndex() == 0, mpValue->value()}.expression(mContext);
}

double FindForm::seconds() const
{
    return mpSeconds->value();
}

bool FindForm::isFree() const
{
    return mpForms->currentWidget() == mpExpression;
}

void FindForm::setFree(bool isFree)
{
    if (isFree && mpExpression->text().isEmpty())
        mpExpression->setText(expression()); // to be gone on with
    mpForms->setCurrentIndex(isFree ? 1 : 0);
    Q_EMIT signalChanged();
}

void FindForm::focusField(int place)
{
    QWidget* pField = isFree() ? static_cast<QWidget*>(mpExpression) : mpParameter;
    pField->setFocus(Qt::ShortcutFocusReason);
    if (place >= 0)
        mpExpression->setCursorPosition(place);
    else if (!isFree())
        mpParameter->lineEdit()->selectAll();
}

} // namespace ZARN
