#pragma once

#include <QDate>
#include <QLineEdit>

namespace ZARN {

/// A date that is typed or chosen in a calendar; left empty it is none. What is no date is marked, and counts as none.
class DateField : public QLineEdit {
    Q_OBJECT

public:
    explicit DateField(const QString& name, QWidget* pParent = nullptr);

    /// Invalid for none.
    [[nodiscard]] QDate date() const;

Q_SIGNALS:
    /// It may be the same.
    void signalDate();

private:
    void check();
    void openCalendar();
};

} // namespace ZARN
