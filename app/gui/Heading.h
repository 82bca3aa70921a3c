#pragma once

#include "app/gui/TextSize.h"

#include <QLabel>

namespace ZARN {

/// A heading: larger than the texts beside it, whatever size these are given. Style sheets know no relative sizes.
class Heading : public QLabel {
    Q_OBJECT

public:
    explicit Heading(const QString& text = {}, QWidget* pParent = nullptr, EText size = EText::eTitle);

    /// Takes the size of the parent's font.
    void follow();

protected:
    void changeEvent(QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;

private:
    const EText mSize;
};

} // namespace ZARN
