#pragma once

#include <QLabel>

namespace ZARN {

/// An icon that is looked at alone, in the colour of the palette that is in force.
class IconLabel : public QLabel {
    Q_OBJECT

public:
    /// @param size of its edge in pixels
    IconLabel(const QString& name, int size, QWidget* pParent = nullptr);

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void draw();

    const QString mName;
    const int mSize;
};

} // namespace ZARN
