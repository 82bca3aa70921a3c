#include "ui/main/WindowLayout.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "app/gui/FirstSize.h"

#include <QEvent>
#include <QFontInfo>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>

#include <algorithm>

namespace ZARN {

namespace {

constexpr QSize kFirstSize(1000, 800);
constexpr int kFirstSideWidth = 320;
constexpr int kSideWidthPerPixel = 15; // of a text larger than the usual
constexpr int kUsualText = 12;

QByteArray stored(const Property& property, const TextSetting& setting)
{
    return QByteArray::fromBase64(QByteArray::fromStdString(setting.get(property)));
}

} // namespace

WindowLayout::WindowLayout(Property& property, QMainWindow& window, QSplitter& centre, QSplitter& side)
    : mProperty(property), mWindow(window), mCentre(centre), mSide(side)
{
}

void WindowLayout::restoreWindow()
{
    mWindow.resize(firstSize(mWindow, kFirstSize));
    mWindow.restoreGeometry(stored(mProperty, Settings::kWindowGeometry)); // refuses what it did not write itself
}

void WindowLayout::restoreSplitters()
{
    setSplitters();
    mCentre.installEventFilter(this);
}

void WindowLayout::settle()
{
    mCentre.removeEventFilter(this);
}

bool WindowLayout::eventFilter(QObject* pObject, QEvent* pEvent)
{
    // The system gives a maximised window its size after it is shown.
    if (pEvent->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &WindowLayout::setSplitters, Qt::QueuedConnection); // the splitter resizes its parts first
    return QObject::eventFilter(pObject, pEvent);
}

void WindowLayout::setSplitters()
{
    const int larger = std::max(QFontInfo(mCentre.font()).pixelSize() - kUsualText, 0);
    const int side = std::min(kFirstSideWidth + larger * kSideWidthPerPixel, mCentre.width() / 3);
    if (!mCentre.restoreState(stored(mProperty, Settings::kWindowSplitter)))
        mCentre.setSizes({side, mCentre.width() - side});
    mSide.restoreState(stored(mProperty, Settings::kWindowSideSplitter));
    // Other versions may have kept other properties of the splitters; only the sizes are the user's.
    for (QSplitter* pSplitter : {&mCentre, &mSide})
        pSplitter->setChildrenCollapsible(false);
}

bool WindowLayout::store()
{
    const bool geometry = storeText(Settings::kWindowGeometry, mWindow.saveGeometry().toBase64().constData());
    const bool centre = storeText(Settings::kWindowSplitter, mCentre.saveState().toBase64().constData());
    const bool side = storeText(Settings::kWindowSideSplitter, mSide.saveState().toBase64().constData());
    return geometry || centre || side;
}

bool WindowLayout::storeText(const TextSetting& setting, const char* text)
{
    if (setting.get(mProperty) == text)
        return false;
    setting.set(mProperty, std::string(text));
    return true;
}

} // namespace ZARN
