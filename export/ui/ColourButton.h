#pragma once

#include <QPushButton>

namespace ZARN {

/// A button that shows a colour and lets another be chosen. The colour is a text of six hexadecimal digits; one that is no colour
/// stays as it is until the user chooses.
class ColourButton : public QPushButton {
    Q_OBJECT

public:
    enum EOpacity { eOpaque, eWithOpacity };

    /// @param chooser title of the window that chooses. @param opacity whether that is chosen too.
    ColourButton(const QString& chooser, EOpacity opacity, QWidget* pParent = nullptr);

    void setColour(const std::string& digits, int alpha = 255);
    [[nodiscard]] const std::string& digits() const { return mDigits; }
    [[nodiscard]] int alpha() const { return mAlpha; }

private Q_SLOTS:
    void slotChoose();

private:
    void show(const QColor& colour);

    QString mChooser;
    EOpacity mOpacity;
    std::string mDigits;
    int mAlpha = 255;
};

} // namespace ZARN
