#include "app/gui/Appearance.h"

#include "app/gui/DesktopScheme.h"
#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/Palette.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QTextBrowser>

namespace ZARN {

namespace {

constexpr int kHalfLightness = 128;
constexpr qint64 kLargest = 64 * 1024; // bytes of a file of colours

} // namespace

QString Appearance::readColours(const QString& path)
{
    mColours = ColourTable::builtIn();
    QFile file(path);
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargest)
        return QCoreApplication::translate("ZARN::Appearance", "It cannot be read.");
    return mColours.change(QString::fromUtf8(file.readAll()));
}

bool Appearance::isSystemDark()
{
    if (const std::optional<bool> isDark = DesktopScheme::isDark())
        return *isDark;
    QApplication::setPalette(QPalette()); // nothing else gives the platform's
    return QApplication::palette().color(QPalette::Window).lightness() < kHalfLightness;
}

void Appearance::apply(EAppearance wanted)
{
    mIsApplying = true;
    const bool isDark = wanted == EAppearance::eDark || (wanted == EAppearance::eSystem && mSystemIsDark());
    mMedium = isDark ? ColourTable::eDark : ColourTable::eLight;
    Palette::setScreen(mColours, mMedium);
    (void)canvasFont(1, false); // style sheets may name it from here on
    QApplication::setPalette(toolkitPalette());
    mIsApplying = false;
}

void Appearance::renewLinks()
{
    for (QWidget* pWidget : QApplication::allWidgets()) {
        auto* pLabel = qobject_cast<QLabel*>(pWidget);
        if (const QString text = pLabel ? pLabel->text() : QString(); text.contains(QLatin1String("<a "))) {
            pLabel->clear();
            pLabel->setText(text);
        } else if (auto* pPages = qobject_cast<QTextBrowser*>(pWidget); pPages && pPages->source().isValid()) {
            const int place = pPages->verticalScrollBar()->value();
            pPages->reload();
            pPages->verticalScrollBar()->setValue(place);
        }
    }
}

/// All roles, or those of the platform would show through.
QPalette Appearance::toolkitPalette() const
{
    using Role = std::pair<QPalette::ColorRole, const char*>;
    static constexpr Role kRoles[] = {{QPalette::Window, "ground"},
                                      {QPalette::WindowText, "text"},
                                      {QPalette::Base, "field"},
                                      {QPalette::AlternateBase, "alternate"},
                                      {QPalette::Text, "text"},
                                      {QPalette::Button, "raised"},
                                      {QPalette::ButtonText, "text"},
                                      {QPalette::BrightText, "alert"},
                                      {QPalette::Link, "link"},
                                      {QPalette::LinkVisited, "link"},
                                      {QPalette::Highlight, "accent"},
                                      {QPalette::HighlightedText, "onAccent"},
                                      {QPalette::ToolTipBase, "tipGround"},
                                      {QPalette::ToolTipText, "tipText"},
                                      {QPalette::PlaceholderText, "quiet"},
                                      {QPalette::Light, "raised"},
                                      {QPalette::Midlight, "gridLine"},
                                      {QPalette::Mid, "border"},
                                      {QPalette::Dark, "fieldBorder"},
                                      {QPalette::Shadow, "border"}};
    static constexpr Role kDisabled[] = {
        {QPalette::WindowText, "disabled"}, {QPalette::Text, "disabled"}, {QPalette::ButtonText, "disabled"}};
    const auto of = [this](const char* name) { return mColours.colour(QLatin1String(name), mMedium); };
    QPalette palette;
    for (const auto& [role, name] : kRoles)
        palette.setColor(role, of(name));
    for (const auto& [role, name] : kDisabled)
        palette.setColor(QPalette::Disabled, role, of(name));
    return palette;
}

} // namespace ZARN
