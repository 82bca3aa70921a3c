#pragma once

#include <QLabel>

namespace ZARN {

/// A heading: larger than the texts beside it, whatever size these are given. Style sheets know no relative sizes.
class Heading : public QLabel {
    Q_OBJECT

public:
    static constexpr double kWindow = 1.7; ///< times the text: the heading of a window

    explicit Heading(const QString& text = {}, QWidget* pParent = nullptr, double size = kWindow);

    /// Takes the size of the parent's font.
    void follow();

protected:
    void changeEvent(QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;

private:
    const double mSize;
};

} // namespace ZARN
