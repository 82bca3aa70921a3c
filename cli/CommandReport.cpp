#include "cli/CommandReport.h"

#include "card/record/MemoryLimit.h"
#include "cli/Resources.h"
#include "report/FlightReport.h"

#include <QGuiApplication>
#include <QTranslator>

namespace ZARN {

namespace {

constexpr std::size_t kLeastMemory = std::size_t(56) << 20; // bytes; the libraries that draw text do not look whether they get theirs

} // namespace

CommandReport::CommandReport(CLI::App& program)
    : DataCommand(program, "report", "write a flight report as PDF", "zarn-cli report /media/card --flight 1 -o flight.pdf")
{
    addOutput();
    options().add("--paper", mPaper, "a4 (default) or letter", CommandOptions::eOptional, CommandOptions::oneOf({"a4", "letter"}));
    options().add("--language", mLanguage, "en (default) or de", CommandOptions::eOptional, CommandOptions::oneOf({"en", "de"}));
}

int CommandReport::runOnData()
{
    if (availableMemory() < kLeastMemory)
        return fail("there is not enough memory for a report");
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
    FlightReport report(mContainer.loaded());
    const ReportOptions paper{mPaper == "letter"};
    return writeOutput([&](SafeFile& file) {
        report.write(file, paper);
        return report.error();
    });
}

} // namespace ZARN
