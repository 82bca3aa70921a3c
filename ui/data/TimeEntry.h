#pragma once

#include <QSpinBox>

#include <optional>

namespace ZARN {

/// An entry for a time, of any number of hours. Reports what the user typed when he has finished, and each step at once;
/// what it is told does not disturb a time that is being typed.
class TimeEntry : public QSpinBox {
    Q_OBJECT

public:
    static constexpr int kLatest = 2000000; ///< seconds; later times are damage

    explicit TimeEntry(QWidget* pParent = nullptr);

    void showTime(int seconds);
    /// Whether there are times before 0, behind a minus sign.
    void setSigned(bool isSigned) { setMinimum(isSigned ? -kLatest : 0); }

Q_SIGNALS:
    void signalTime(int seconds);

protected:
    [[nodiscard]] QString textFromValue(int value) const override;
    [[nodiscard]] int valueFromText(const QString& text) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;
    void stepBy(int steps) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;

private:
    void finish();
    [[nodiscard]] std::optional<int> secondsOf(const QString& text) const;

    QString mTyped; ///< since the last time that was told; empty when nothing was
};

} // namespace ZARN
