#include "cli/CommandReport.h"

#include "app/SafeFile.h"
#include "cli/Resources.h"
#include "report/FlightReport.h"

#include <QGuiApplication>
#include <QTranslator>

#include <unistd.h>

namespace ZARN {

CommandReport::CommandReport(CLI::App& program) : DataCommand(program, "report", "write a flight report as PDF")
{
    options().add("-o,--output", mOutput, "file to write; \"-\" is standard output", CommandOptions::eRequired);
    options().add("--paper", mPaper, "a4 (default) or letter", CommandOptions::eOptional, CommandOptions::oneOf({"a4", "letter"}));
    options().add("--language", mLanguage, "en (default) or de", CommandOptions::eOptional, CommandOptions::oneOf({"en", "de"}));
}

int CommandReport::runOnData()
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // paper needs no display
    char name[] = "zarn-cli";
    char* arguments[] = {name, nullptr};
    int count = 1;
    const QGuiApplication application(count, arguments);
    QTranslator texts;
    if (mLanguage != "en") {
        if (!texts.load("zarn_" + QString::fromStdString(mLanguage), QString::fromStdString(resourceFolder())))
            return fail(resourceFolder() + ": no texts in the language \"" + mLanguage + "\"");
        QCoreApplication::installTranslator(&texts);
    }
    FlightReport report(mContainer, mProfile);
    const ReportOptions paper{mPaper == "letter"};
    const auto write = [&](SafeFile&& file) { return report.write(file, paper); };
    const bool written = mOutput == "-" ? write(SafeFile::onDescriptor(STDOUT_FILENO, "standard output")) : write(SafeFile(mOutput));
    return written ? eDone : fail(report.error());
}

} // namespace ZARN
