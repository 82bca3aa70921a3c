#pragma once

#include <QDoubleSpinBox>

namespace ZARN {

/// The entry for the replay's speed: the decimal sign of the chosen language, and the other one is understood; steps that lead somewhere.
class SpeedBox : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit SpeedBox(QWidget* pParent = nullptr);

protected:
    [[nodiscard]] double valueFromText(const QString& text) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& position) const override;
    void stepBy(int steps) override;

private:
    [[nodiscard]] QString withDecimalSign(const QString& text) const;
};

} // namespace ZARN
