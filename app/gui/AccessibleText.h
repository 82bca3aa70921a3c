#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace ZARN {

/// What a drawing shows, in words, for assistive technology: it is put together when it is asked for, since most users never do. The toolkit
/// then finds it as the description of the widget, which owns it.
class AccessibleText : public QObject {
public:
    using Text = std::function<QString()>;

    /// Gives a widget such a text; first of all, for the toolkit asks but once. Its name stays what it is.
    static void give(QWidget& widget, Text text);
    [[nodiscard]] QString text() const { return mText(); }

private:
    AccessibleText(QWidget& widget, Text text);

    Text mText;
};

} // namespace ZARN
