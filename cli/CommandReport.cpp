#include "cli/CommandReport.h"

#include "app/FileName.h"
#include "app/TextLocale.h"
#include "card/record/MemoryLimit.h"
#include "cli/Resources.h"

#include <QGuiApplication>
#include <QLocale>
#include <QTranslator>

namespace ZARN {

namespace {

constexpr std::size_t kLeastMemory = std::size_t(56) << 20; // bytes; the libraries that draw text do not look whether they get theirs

} // namespace

CommandReport::CommandReport(CLI::App& program)
    : DataCommand(program, "report", "write a flight report as PDF or HTML", "zarn-cli report /media/card --flight 1 -o flight.pdf")
{
    mContainer.setPathWanted(true);
    addOutput();
    options().add("--format", mFormat, "pdf or html (default: that of the file's suffix, else pdf)", CommandOptions::eOptional,
                  CommandOptions::oneOf({"pdf", "html"}));
    options().add("--paper", mPaper, "a4 (default) or letter", CommandOptions::eOptional, CommandOptions::oneOf({"a4", "letter"}));
    options().add("--language", mLanguage, "en (default) or de", CommandOptions::eOptional, CommandOptions::oneOf({"en", "de"}));
}

int CommandReport::run()
{
    const auto format = isGiven("--format") ? std::optional(mFormat == "html" ? EReportFormat::eHtml : EReportFormat::ePdf)
                                            : FlightReport::formatOf(decodeFileName(output()));
    if (!format) {
        say(output() + ": a report is a .pdf or a .html file (see zarn-cli report --help)");
        return eWrongCall;
    }
    mReport = {mPaper == "letter", *format};
    if (availableMemory() < kLeastMemory)
        return fail("there is not enough memory for a report");
    qputenv("QT_QPA_PLATFORM", "offscreen"); // paper needs no display
    char name[] = "zarn-cli";
    char* arguments[] = {name, nullptr};
    int count = 1;
    const QGuiApplication application(count, arguments);
    QTranslator texts;
    QLocale::setDefault(textLocale(mLanguage == "en" ? "en_US" : QString::fromStdString(mLanguage)));
    if (!texts.load("zarn_" + QString::fromStdString(mLanguage), QString::fromStdString(resourceFolder())))
        return fail(resourceFolder() + ": no texts in the language \"" + mLanguage + "\"");
    QCoreApplication::installTranslator(&texts);
    return DataCommand::run(); // what is wrong with the card is told in the language of the report
}

int CommandReport::runOnData()
{
    FlightReport report(ReportSubject{mContainer.loaded()});
    return writeOutput([&](SafeFile& file) {
        report.write(file, mReport);
        return report.error();
    });
}

} // namespace ZARN
