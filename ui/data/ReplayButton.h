#pragma once

#include <QPushButton>

namespace ZARN {

/// A button with an icon and a text that shows the icon alone where there is no room for both. It keeps its text, which is then told by the
/// tool tip and read out as before.
class ReplayButton : public QPushButton {
    Q_OBJECT

public:
    explicit ReplayButton(const char* name);

    void setLook(const QString& text, const QIcon& icon);
    /// The pixels that the button needs for a text, or for the icon alone when there is none.
    [[nodiscard]] int widthFor(const QString& text) const;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

} // namespace ZARN
