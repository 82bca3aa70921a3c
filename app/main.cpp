#include "app/CmdLine.h"
#include "app/Console.h"
#include "app/DataHandler.h"
#include "app/Property.h"
#include "app/Revision.h"
#include "app/Settings.h"
#include "app/StartMarker.h"
#include "app/StyleHandler.h"
#include "app/TextLocale.h"
#include "app/gui/Application.h"
#include "app/gui/DialogSplash.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/Kernel.h"
#include "card/CardContainer.h"
#include "card/record/RecordFormats.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "ui/canvas/CanvasFont.h"
#include "ui/gl/GraphicsCheck.h"
#include "ui/main/DialogMain.h"

#include <QFileInfo>
#include <QFontMetrics>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>

#include <csignal>
#include <cstdio>
#include <new>

namespace ZARN {

namespace {

/// Whether an argument names a card folder, or one of its files, as file managers hand over what is opened with the program. What is not
/// there counts, so that the window says what is missing.
bool isCard(const std::string& argument)
{
    const QFileInfo info(QString::fromStdString(argument));
    if (!info.exists())
        return !argument.empty() && !argument.starts_with('-');
    return info.isDir() || (info.isFile() && RecordFormats::ofName(argument));
}

void registerOptions(CmdLine& cmdLine)
{
    cmdLine.addSwitch("-h", "print this help");
    cmdLine.addSwitch("--help", "print this help and end");
    cmdLine.addSwitch("--version", "print the version and end");
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

/// Loads a translation from beside the executable or from the resources. Never from the current folder: that may be a stranger's card.
bool loadTranslation(QTranslator& translator, const QString& name)
{
    return translator.load(name, QCoreApplication::applicationDirPath()) ||
           translator.load(name, QString::fromStdString(DataHandler::instance().resourcePath()));
}

/// @return whether there is one
bool installTranslation(QTranslator& translator, const QString& prefix, const char* name, const Console& console)
{
    const std::string locale = Settings::kLocale.get(Property::instance());
    const bool loaded = loadTranslation(translator, prefix + QString::fromStdString(locale));
    console.print("Translation %s <%s> %d\n", name, locale.c_str(), loaded ? 1 : 0);
    if (loaded)
        QCoreApplication::installTranslator(&translator);
    return loaded;
}

/// In the language of the settings, numbers as it writes them; without a translation in English, whose forms of texts with a number are a
/// file as well.
void installTranslations(const Console& console)
{
    static QTranslator toolkitTexts;
    static QTranslator ownTexts;
    installTranslation(toolkitTexts, "qt_", "QT", console);
    const bool isTranslated = installTranslation(ownTexts, "zarn_", "IOS", console);
    QLocale::setDefault(textLocale(isTranslated ? QString::fromStdString(Settings::kLocale.get(Property::instance())) : QString("en_US")));
    if (!isTranslated && loadTranslation(ownTexts, "zarn_en"))
        QCoreApplication::installTranslator(&ownTexts);
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
    const QPushButton* pDefaults = box.addButton(QCoreApplication::translate("ZARN::main", "Begin with defaults"), QMessageBox::AcceptRole);
    QPushButton* pKeep = box.addButton(QCoreApplication::translate("ZARN::main", "Start as usual"), QMessageBox::RejectRole);
    box.setDefaultButton(pKeep); // a key that was meant for something else must not cost the settings
    box.setEscapeButton(pKeep);
    box.exec();
    return box.clickedButton() == pDefaults;
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
    property.setConfigFile(dataPath + "/ZARN.ini");
    // What could not be put aside is not read either; a folder that refuses that does not let it be written over.
    if (!defaults || StartMarker::putAside(dataPath))
        property.readXmlFile();
    return defaults;
}

void applyStyle(Kernel& kernel)
{
    std::string file;
    CmdLine::instance().getParameter("-s", file);
    kernel.readColours(QString::fromStdString(DataHandler::instance().dataPath() + "/palette.txt"));
    kernel.loadStyleFile(file.empty() ? Kernel::kBuiltInStyle : QString::fromStdString(file));
}

QString checkGraphics(const Console& console)
{
    QString problem = GraphicsCheck::problem();
    if (!problem.isEmpty())
        console.print("%s\n", problem.toUtf8().constData());
    return problem;
}

/// Answers what needs no window. @return whether that was all.
bool isAnswered(int argc, char** argv, const Console& console)
{
    const Console silent([](std::string_view) {}, [](std::string_view) {});
    CmdLine given(silent);
    registerOptions(given);
    given.parse(argc, argv);
    if (!given.getSwitch("--help") && !given.getSwitch("--version"))
        return false;
    CmdLine usage(console);
    registerOptions(usage);
    usage.parse(1, argv); // for the program's name
    if (given.getSwitch("--help"))
        usage.printUsage();
    else
        console.print("%s\n", Revision::getRevisionString().c_str());
    return true;
}

int runWindow(QApplication& application)
{
    const Console& console = Console::standardOutput();
    CmdLine& cmdLine = CmdLine::instance();
    DialogSplash& splash = DialogSplash::instance();
    splash.addEntry("Starting up ZARN...");
    splash.addEntry(QString("Version %1").arg(QString::fromStdString(Revision::getRevisionString())));
    Kernel& kernel = Kernel::instance();
    QSurfaceFormat::setDefaultFormat(GraphicsCheck::surfaceFormat());
    setAttributes();
    StartMarker marker(DataHandler::instance().dataPath());
    const bool defaults = readSettings(marker, splash);
    installTranslations(console);
    applyStyle(kernel);
    kernel.setApplication(&application); // from here on: each widget would be styled anew whenever it gets another parent
    splash.addEntry("Creating Dialogs ...");
    const Session session{console, Property::instance(), Profile::instance(), CardContainer::instance(), Project::instance()};
    const WindowEnvironment environment{cmdLine, DataHandler::instance(), kernel, checkGraphics(console), defaults};
    DialogMain window(session, environment);
    application.installEventFilter(&window);
    QObject::connect(&window, &DialogMain::signalStarted, [&marker] { marker.succeed(); });
    splash.finish(&window);
    const int status = QApplication::exec();
    marker.succeed(); // quit before the window had restored anything
    kernel.finishRestart();
    return status;
}

int runProgram(int argc, char** argv)
{
    const Console& console = Console::standardOutput();
    if (isAnswered(argc, argv, console))
        return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
    Revision::printHeader(console);
    CmdLine& cmdLine = CmdLine::instance();
    registerOptions(cmdLine);
    if (!cmdLine.parse(argc, argv) || cmdLine.getSwitch("-h"))
        cmdLine.printUsage();
    QApplication::setStyle("Fusion");
    Application application(argc, argv);
    QApplication::setLayoutDirection(Qt::LeftToRight); // as all of the program's languages are read, whatever the system's
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); // where there is no translation
    if (!QFontMetrics(QApplication::font()).inFont('a'))
        QApplication::setFont(canvasFont(Settings::kFontSize.fallback, false)); // better than a box for each letter
    QApplication::setApplicationName(QString::fromStdString(Revision::getName()));
    QApplication::setApplicationVersion(QString::fromStdString(Revision::getRevisionNumber()));
    QGuiApplication::setDesktopFileName(ZARN_APPLICATION_ID); // so that desktops find name and icon of its windows
    ImageHandler::initialise();
    QApplication::setWindowIcon(ImageHandler::icon("program")); // has a ground of its own: desktops draw it on theirs
    return runWindow(application);
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
    try {
        return ZARN::runProgram(argc, argv);
    } catch (const std::bad_alloc&) {
        return ZARN::Application::reportExhausted();
    }
}
