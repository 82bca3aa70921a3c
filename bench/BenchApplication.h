#pragma once

#include "app/StyleHandler.h"
#include "app/gui/Appearance.h"
#include "ui/gl/GraphicsCheck.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QWidget>
#include <QWindow>

namespace ZARN {

/// Starts what widgets need, once. Without a platform of the caller's choice it is the one that has no screen.
inline void startApplication()
{
    if (QCoreApplication::instance())
        return;
    static int count = 1;
    static char name[] = "zarn-bench";
    static char* arguments[] = {name, nullptr};
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QSurfaceFormat::setDefaultFormat(GraphicsCheck::surfaceFormat());
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    [[maybe_unused]] static QApplication* pApplication = new QApplication(count, arguments); // outlives all static objects
}

/// The program's style sheet as it is in force at first.
inline QString styleSheet()
{
    Appearance appearance;
    appearance.apply(EAppearance::eLight);
    StyleHandler style;
    style.setShared(appearance.variables());
    return style.readStyle(ZARN_SOURCE_DIR "/resources/styles/style.ZARN.css") + "\nQWidget {font-size: 12px;}";
}

/// The application that a window with OpenGL needs; null where there is no display.
inline QApplication* displayApplication()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return nullptr;
    startApplication();
    return qApp;
}

/// Shows a window and waits until it is on the screen: before that it draws nothing, however often it is asked.
/// @return whether it is there within some seconds.
inline bool showOnScreen(QWidget& window)
{
    window.show();
    for (const QDeadlineTimer end(5000); !window.windowHandle()->isExposed();) {
        if (end.hasExpired())
            return false;
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    QApplication::processEvents();
    return true;
}

} // namespace ZARN
