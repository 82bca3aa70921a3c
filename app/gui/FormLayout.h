#pragma once

#include <QFormLayout>

namespace ZARN {

/// A form whose labels stand at the height of the text in their fields: the toolkit's put them higher where fields are much higher than texts.
class FormLayout : public QFormLayout {
public:
    using QFormLayout::QFormLayout;

    void setGeometry(const QRect& rect) override;
};

} // namespace ZARN
