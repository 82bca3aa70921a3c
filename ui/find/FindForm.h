#pragma once

#include "ui/find/model/FindCondition.h"

#include <QWidget>

class DecimalBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QStackedWidget;

namespace ZARN {

/// Where a condition is put together by choices, or written as a formula; and for how long it shall have held.
class FindForm : public QWidget {
    Q_OBJECT

public:
    explicit FindForm(QWidget* pParent = nullptr);

    /// What can be chosen. The choice stays where it is there still, else it is the preferred one.
    void setParameters(std::vector<FindParameter> parameters, const QString& preferred, const DecodingContext& context);
    /// The condition as a formula; empty where the choices make none.
    [[nodiscard]] QString expression() const;
    /// Whether there is a parameter of the chosen name.
    [[nodiscard]] bool isKnown() const { return parameter() != nullptr; }
    [[nodiscard]] double seconds() const;
    [[nodiscard]] bool isFree() const;
    void setFree(bool isFree);
    /// Into the field that is filled in first; at a character of a formula.
    void focusField(int place = -1);

Q_SIGNALS:
    void signalChanged();

private:
    QWidget* createChoices();
    void chooseParameter();
    void suggestValue();
    void convertValue();
    [[nodiscard]] const FindParameter* parameter() const;

    std::vector<FindParameter> mParameters;
    DecodingContext mContext;
    QStackedWidget* mpForms;
    QComboBox* mpParameter;
    QComboBox* mpSide;
    DecimalBox* mpValue;
    QLabel* mpUnit;
    QLineEdit* mpExpression;
    DecimalBox* mpSeconds;
    QString mValued;       ///< the parameter that the value belongs to
    /// The user's own value, where it is not the parameter's limit.
    struct Typed {
        double value = 0.0;
        DecodingContext context; ///< in whose unit
    };
    std::optional<Typed> mTyped;
};

} // namespace ZARN
