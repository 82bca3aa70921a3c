#include "app/gui/AccessibleText.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace ZARN {

namespace {

class DescribedWidget : public QAccessibleWidget {
public:
    DescribedWidget(QWidget& widget, const AccessibleText& text) : QAccessibleWidget(&widget, QAccessible::Graphic), mText(text) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description ? mText.text() : QAccessibleWidget::text(kind);
    }

private:
    const AccessibleText& mText; // a child of the widget: both go together
};

QAccessibleInterface* make(const QString& /*className*/, QObject* pObject)
{
    auto* pWidget = qobject_cast<QWidget*>(pObject);
    if (!pWidget)
        return nullptr;
    for (const QObject* pChild : pWidget->children()) {
        if (const auto* pText = dynamic_cast<const AccessibleText*>(pChild))
            return new DescribedWidget(*pWidget, *pText);
    }
    return nullptr;
}

} // namespace

AccessibleText::AccessibleText(QWidget& widget, Text text) : QObject(&widget), mText(std::move(text)) {}

void AccessibleText::give(QWidget& widget, Text text)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(make);
        return true;
    }();
    Q_UNUSED(isInstalled)
    new AccessibleText(widget, std::move(text));
}

} // namespace ZARN
