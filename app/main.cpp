#include "app/CmdLine.h"
#include "app/Console.h"
#include "app/DataHandler.h"
#include "app/Property.h"
#include "app/Revision.h"
#include "app/StartMarker.h"
#include "app/StyleHandler.h"
#include "app/gui/DialogSplash.h"
#include "app/gui/GraphicsCheck.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/Kernel.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "ui/main/DialogMain.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>

#include <csignal>
#include <cstdio>

namespace ZARN {

namespace {

/// Whether an argument names a card folder, or one of its files, as file managers hand over what is opened with the program.
bool isCard(const std::string& argument)
{
    const QFileInfo info(QString::fromStdString(argument));
    return info.isDir() || (info.isFile() && QStringList{"CAN", "can", "xcb"}.contains(info.suffix()));
}

void registerOptions(CmdLine& cmdLine)
{
    cmdLine.addSwitch("-h", "print this help");
    cmdLine.addSwitch("-emu", "EMU display only");
    cmdLine.addSwitch("-connect", "connect after startup");
    cmdLine.addParameter("-s", "stylefile to load", "");
    cmdLine.addSwitch("--safe-mode", "begin with default settings");
    cmdLine.addOperand(isCard);
}

void setAttributes()
{
    // The toolkit asks for the first of them earlier and says so on standard error. The views share their textures by
    // themselves, so that being late costs nothing.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QT_WARNING_POP
}

/// Loads a translation from the application bundle or, where there is none, from the resources.
bool loadTranslation(QTranslator& translator, const QString& name)
{
    return translator.load(name, "zarn.app/Contents/Resources/")
           || translator.load(name, QString::fromStdString(DataHandler::instance().resourcePath()));
}

void installTranslation(QTranslator& translator, const QString& prefix, const char* name, const Console& console)
{
    const std::string locale = Property::instance().getString("Locale", "us");
    QLocale::setDefault(QLocale(locale == "us" ? QString("en_US") : QString::fromStdString(locale))); // numbers as the language writes them
    const bool loaded = loadTranslation(translator, prefix + QString::fromStdString(locale));
    console.print("Translation %s <%s> %d\n", name, locale.c_str(), loaded ? 1 : 0);
    if (loaded)
        QCoreApplication::installTranslator(&translator);
}

/// Asked before the settings are read, and so in the language of the system.
bool wantsDefaults()
{
    QTranslator translator;
    if (loadTranslation(translator, "zarn_" + QLocale::system().name().section('_', 0, 0)))
        QCoreApplication::installTranslator(&translator);
    QMessageBox box(QMessageBox::Question, QCoreApplication::translate("ZARN::main", "ZARN Warning"),
                    QCoreApplication::translate("ZARN::main", "The last start of ZARN failed.\nBegin with default settings ?"));
    box.setInformativeText(QCoreApplication::translate("ZARN::main", "Settings and current project are put aside, not deleted."));
    box.addButton(QCoreApplication::translate("ZARN::main", "Begin with defaults"), QMessageBox::AcceptRole);
    const QPushButton* pKeep = box.addButton(QCoreApplication::translate("ZARN::main", "Start as usual"), QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() != pKeep;
}

/// @return whether the program begins with defaults.
bool readSettings(StartMarker& marker, DialogSplash& splash)
{
    Property& property = Property::instance();
    const std::string& dataPath = DataHandler::instance().dataPath();
    bool defaults = CmdLine::instance().getSwitch("--safe-mode");
    if (marker.begin() && !defaults) {
        splash.hide(); // it would cover the question
        defaults = wantsDefaults();
        splash.show();
    }
    if (defaults)
        StartMarker::putAside(dataPath);
    property.setConfigFile(dataPath + "/ZARN.ini");
    property.readXmlFile();
    return defaults;
}

void applyStyle(QApplication& application)
{
    std::string file;
    CmdLine::instance().getParameter("-s", file);
    const QString path = file.empty() ? QString(":/styles/style.ZARN.css") : QString::fromStdString(file);
    application.setStyleSheet(StyleHandler::instance().readStyle(path));
}

QString checkGraphics(const Console& console)
{
    QString problem = GraphicsCheck::problem();
    if (!problem.isEmpty())
        console.print("%s\n", problem.toUtf8().constData());
    return problem;
}

int runProgram(int argc, char** argv)
{
    const Console& console = Console::standardOutput();
    Revision::printHeader(console);
    CmdLine& cmdLine = CmdLine::instance();
    registerOptions(cmdLine);
    if (!cmdLine.parse(argc, argv) || cmdLine.getSwitch("-h"))
        cmdLine.printUsage();
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QString::fromStdString(Revision::getName()));
    QApplication::setApplicationVersion(QString::fromStdString(Revision::getRevisionNumber()));
    ImageHandler::initialise();
    DialogSplash& splash = DialogSplash::instance();
    splash.addEntry("Starting up ZARN...");
    splash.addEntry(QString("Version %1").arg(QString::fromStdString(Revision::getRevisionString())));
    Kernel& kernel = Kernel::instance();
    kernel.setApplication(&application);
    QSurfaceFormat::setDefaultFormat(GraphicsCheck::surfaceFormat());
    setAttributes();
    StartMarker marker(DataHandler::instance().dataPath());
    const bool defaults = readSettings(marker, splash);
    static QTranslator toolkitTexts;
    static QTranslator ownTexts;
    installTranslation(toolkitTexts, "qt_", "QT", console);
    installTranslation(ownTexts, "zarn_", "IOS", console);
    applyStyle(application);
    splash.addEntry("Creating Dialogs ...");
    const Session session{console, Property::instance(), Profile::instance(), CardContainer::instance(), Project::instance()};
    const Desktop desktop{cmdLine, DataHandler::instance(), kernel, checkGraphics(console), defaults};
    DialogMain window(session, desktop);
    kernel.setMainWindow(&window);
    application.installEventFilter(&window);
    QObject::connect(&window, &DialogMain::signalStarted, [&marker] { marker.succeed(); });
    splash.finish();
    const int status = QApplication::exec();
    marker.succeed(); // quit before the window had restored anything
    kernel.setMainWindow(nullptr);
    return status;
}

} // namespace

} // namespace ZARN

int main(int argc, char** argv)
{
    // Full disks and closed pipes arrive as failed writes, so that they are said and cost no file.
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    std::signal(SIGPIPE, SIG_IGN);
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // a log that is read while the program runs, or after it crashed, is whole
    return ZARN::runProgram(argc, argv);
}
