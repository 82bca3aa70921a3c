#include "app/gui/Kernel.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "app/StyleHandler.h"

#include <QApplication>
#include <QProcess>

namespace ZARN {

Kernel::Kernel(const Property& property, StyleHandler& style, Starter starter)
    : mProperty(property), mStyle(style), mStarter(std::move(starter))
{
}

Kernel& Kernel::instance()
{
    static Kernel kernel(Property::instance(), StyleHandler::instance(), [](const QString& program, const QStringList& arguments) {
        return QProcess::startDetached(program, arguments, QString());
    });
    return kernel;
}

void Kernel::loadStyleFile(const QString& styleFile)
{
    mStyle.readStyle(styleFile);
    applyFontSize(Settings::kFontSize.get(mProperty));
}

void Kernel::applyFontSize(int pixels)
{
    if (mpApplication)
        mpApplication->setStyleSheet(QString("%1\nQWidget {font-size: %2px;}").arg(mStyle.styleSheet(), QString::number(pixels)));
}

void Kernel::restart()
{
    mRestarts = true;
    QCoreApplication::quit();
}

void Kernel::finishRestart()
{
    if (!mRestarts)
        return;
    mRestarts = false;
    QStringList arguments = QCoreApplication::arguments();
    const QString program = arguments.takeFirst();
    mStarter(program, arguments);
}

} // namespace ZARN
