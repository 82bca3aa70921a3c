#include "app/gui/DialogSplash.h"

#include <QEvent>
#include <QPainter>

namespace ZARN {

namespace {

constexpr int kMaxEntries = 15;
constexpr int kLeft = 5;
constexpr int kFirstBaseline = 30;
constexpr int kLineHeight = 15;
constexpr int kStandingMilliseconds = 3000;

} // namespace

DialogSplash* DialogSplash::mpSplash = nullptr;

DialogSplash::DialogSplash() : QSplashScreen(QPixmap(":/images/splash.png"), Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_QuitOnClose, false); // the picture alone keeps no program alive
    mTimer.setParent(this);
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &DialogSplash::slotTimeout);
    show();
    repaint();
}

DialogSplash& DialogSplash::instance()
{
    if (!mpSplash) {
        mpSplash = new DialogSplash;
        mpSplash->setAttribute(Qt::WA_DeleteOnClose);
    }
    return *mpSplash;
}

void DialogSplash::addEntry(const QString& text)
{
    mEntries.append(text);
    if (mEntries.size() > kMaxEntries)
        mEntries.removeFirst();
    repaint();
}

void DialogSplash::finish(QWidget* pWindow)
{
    if (pWindow)
        pWindow->installEventFilter(this);
    if (mpSplash == this)
        mpSplash = nullptr;
    mTimer.start(kStandingMilliseconds);
}

void DialogSplash::slotTimeout()
{
    close();
}

void DialogSplash::drawContents(QPainter* pPainter)
{
    QSplashScreen::drawContents(pPainter);
    pPainter->setFont(QFont()); // the lines have a fixed distance, whatever the font size of the windows
    pPainter->setPen(QColor(0, 0, 200));
    int baseline = kFirstBaseline;
    for (const QString& entry : mEntries) {
        pPainter->drawText(kLeft, baseline, entry);
        baseline += kLineHeight;
    }
}

bool DialogSplash::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::WindowBlocked || pEvent->type() == QEvent::Hide)
        close();
    return QSplashScreen::eventFilter(pObject, pEvent);
}

void DialogSplash::mousePressEvent(QMouseEvent* /*pEvent*/)
{
}

} // namespace ZARN
