#include "app/gui/Kernel.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "app/StyleHandler.h"

#include <QApplication>
#include <QFile>
#include <QProcess>

namespace ZARN {

const QString Kernel::kBuiltInStyle = QStringLiteral(":/styles/style.ZARN.css");

Kernel::Kernel(const Property& property, StyleHandler& style, Starter starter, const Appearance& appearance)
    : mProperty(property), mStyle(style), mStarter(std::move(starter)), mAppearance(appearance)
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
    mStyleFile = styleFile;
    applyPalette();
}

void Kernel::readColours(const QString& file)
{
    const QString problem = mAppearance.readColours(file);
    mColourProblem = problem.isEmpty() ? QString() : file + "\n" + problem;
}

void Kernel::applyPalette()
{
    mAppearance.apply(static_cast<EAppearance>(Settings::kPalette.get(mProperty)));
    mStyle.setShared(mAppearance.variables());
    mStyleProblem.clear();
    if (!mStyleFile.isEmpty())
        mStyle.readStyle(mStyleFile);
    mIsStyleMissing = !mStyleFile.isEmpty() && !QFile(mStyleFile).open(QIODevice::ReadOnly);
    if (mIsStyleMissing)
        mStyleProblem = mStyleFile + "\n" + QCoreApplication::translate("ZARN::Kernel", "It cannot be read.");
    if (const QStringList unknown = mStyle.unknown(); !unknown.isEmpty()) { // the toolkit would refuse all of it
        mStyleProblem = mStyleFile + "\n" + QCoreApplication::translate("ZARN::Kernel", "Unknown variables: %1").arg(unknown.join(", "));
        mStyle.readStyle(kBuiltInStyle);
    }
    applyFontSize(Settings::kFontSize.get(mProperty));
    Appearance::renewLinks();
}

bool Kernel::followsSystem() const
{
    return static_cast<EAppearance>(Settings::kPalette.get(mProperty)) == EAppearance::eSystem && !mAppearance.isApplying();
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
