#pragma once

#include <QDoubleSpinBox>

/// An entry for a number: the decimal sign of the chosen language, and the other one is understood.
class DecimalBox : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit DecimalBox(QWidget* pParent = nullptr);

protected:
    [[nodiscard]] double valueFromText(const QString& text) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& position) const override;

private:
    [[nodiscard]] QString withDecimalSign(const QString& text) const;
};
