#pragma once

#include "app/CmdLine.h"
#include "app/DataHandler.h"
#include "app/Property.h"
#include "app/StyleHandler.h"
#include "app/gui/Kernel.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "support/ConsoleText.h"
#include "support/Places.h"
#include "ui/main/CardController.h"
#include "ui/main/DialogMain.h"

#include "app/Progress.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

/// Everything that a main window needs, in a home folder of its own: no settings of the user are read or written. A second fixture over
/// the same home is the next start of the program.
struct DesktopFixture {
    explicit DesktopFixture(const QString& home, const std::vector<std::string>& arguments = {})
        : cmdLine(console.console),
          folders((ZARN::binaryDir() + "/bin").toStdString(), home.toStdString(), home.toStdString() + "/data", console.console),
          property(console.console), profile(console.console), container(console.console, profile, ZARN::nullProgress()),
          project(console.console, profile), kernel(property, style, [this](const QString& program, const QStringList& given) {
              restarted = QStringList{program} + given;
              return true;
          })
    {
        std::vector<const char*> pointers{"zarn"};
        for (const std::string& argument : arguments)
            pointers.push_back(argument.c_str());
        cmdLine.addSwitch("-emu", "");
        cmdLine.addParameter("-s", "", "");
        cmdLine.addOperand([](const std::string& argument) { return argument.front() == '/'; });
        cmdLine.parse(static_cast<int>(pointers.size()), pointers.data());
        property.setConfigFile(folders.dataPath() + "/ZARN.ini");
        property.readXmlFile();
        kernel.setApplication(qApp);
    }

    /// Opens the window, as the start of the program does.
    ZARN::DialogMain& open(bool withDefaults = false)
    {
        window.emplace(ZARN::Session{console.console, property, profile, container, project},
                       ZARN::WindowEnvironment{cmdLine, folders, kernel, QString(), withDefaults});
        qApp->installEventFilter(&*window);
        return *window;
    }

    ConsoleText console;
    ZARN::CmdLine cmdLine;
    DataHandler folders;
    ZARN::Property property;
    ZARN::Profile profile;
    ZARN::CardContainer container;
    ZARN::Project project;
    StyleHandler style;
    QStringList restarted;
    ZARN::Kernel kernel;
    std::optional<ZARN::DialogMain> window;
};

/// Waits until the work of the last run is restored.
inline void started(ZARN::DialogMain& window)
{
    QVERIFY(QSignalSpy(&window, &ZARN::DialogMain::signalStarted).wait(10000));
}

/// Waits until nothing is loaded any more, and the views have been told.
inline void settled(ZARN::DialogMain& window)
{
    QTRY_VERIFY_WITH_TIMEOUT(!window.card().isBusy(), 30000);
    QCoreApplication::sendPostedEvents();
}

template <typename Widget> bool isShown(ZARN::DialogMain& window)
{
    const auto* pWidget = window.findChild<Widget*>();
    return pWidget && pWidget->isVisible();
}
