#include "app/gui/TextTwin.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace ZARN {

namespace {

class DescribedWidget : public QAccessibleWidget {
public:
    DescribedWidget(QWidget& widget, const TextTwin& twin) : QAccessibleWidget(&widget, QAccessible::Graphic), mTwin(twin) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description ? mTwin.text() : QAccessibleWidget::text(kind);
    }

private:
    const TextTwin& mTwin; // a child of the widget: both go together
};

QAccessibleInterface* make(const QString& /*className*/, QObject* pObject)
{
    auto* pWidget = qobject_cast<QWidget*>(pObject);
    if (!pWidget)
        return nullptr;
    for (const QObject* pChild : pWidget->children()) {
        if (const auto* pTwin = dynamic_cast<const TextTwin*>(pChild))
            return new DescribedWidget(*pWidget, *pTwin);
    }
    return nullptr;
}

} // namespace

TextTwin::TextTwin(QWidget& widget, Text text) : QObject(&widget), mText(std::move(text)) {}

void TextTwin::give(QWidget& widget, Text text)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(make);
        return true;
    }();
    Q_UNUSED(isInstalled)
    new TextTwin(widget, std::move(text));
}

} // namespace ZARN
