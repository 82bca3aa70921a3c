#include "report/ReportComparison.h"

#include "report/ReportDocument.h"
#include "report/ReportGraph.h"
#include "report/ReportText.h"
#include "ui/graph/model/GhostCycle.h"
#include "ui/graph/model/GraphTexts.h"

#include <algorithm>

namespace ZARN {

namespace {

enum EText : qsizetype { eMinimum = 3, eMaximum = 4, eMean = 5 }; // of MarkerValues::texts()

void addRow(ReportTable& table, const MarkerValues& own, const MarkerValues* pOther)
{
    const auto texts = [](const MarkerValues* pValues) {
        const QStringList all = pValues ? pValues->texts() : QStringList();
        return pValues ? QStringList{all[eMinimum], all[eMean], all[eMaximum]} : QStringList{"-", "-", "-"};
    };
    QStringList cells = QStringList{reportText(own.label().toStdString())} + texts(&own) + texts(pOther);
    const bool isDifferent = pOther && own.mean && pOther->mean && !own.pParameter->pStates;
    cells << (isDifferent ? graphNumber(*own.mean - *pOther->mean, own.pParameter->precision + 1) : QStringLiteral("-"));
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        table.columns[i].cells << cells[static_cast<qsizetype>(i)];
}

} // namespace

void ReportComparison::addTo(ReportDocument& document, const ReportSubject& subject, const ReportGraph& graph)
{
    if (!subject.comparison.pCycle || graph.isEmpty())
        return;
    const auto& [pCycle, shift] = subject.comparison;
    const TimeReference times = subject.reference();
    const double start = std::max(subject.loaded.startTime, std::max(pCycle->loaded.wholeStart, pCycle->part.start) + shift);
    const double end = std::min(subject.loaded.endTime, std::min(pCycle->loaded.wholeEnd, pCycle->part.end) + shift);
    document.add(ReportHeading{tr("Compared with %1").arg(reportText(pCycle->name.toStdString()))});
    if (!(start < end))
        return document.add(ReportParagraph{tr("As the two are laid on each other they have no time in common.")});
    document.add(
        ReportParagraph{tr("Dashed in the graph of the main parameters. Its recording begins at %1 of this one. What follows is of the "
                           "time that both have, %2 to %3.")
                            .arg(times.textAt(shift), times.textAt(start), times.textAt(end)),
                        ReportParagraph::eQuiet});
    ReportTable table{tr("Compared with %1").arg(reportText(pCycle->name.toStdString())),
                      {{tr("Parameter"), false, {}, true},
                       {tr("Lowest"), true},
                       {tr("Mean"), true},
                       {tr("Highest"), true},
                       {tr("Lowest there"), true},
                       {tr("Mean there"), true},
                       {tr("Highest there"), true},
                       {tr("Difference of the means"), true}}};
    const std::vector<MarkerValues> values = graph.values({start, end});
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isCompared = i + 1 < values.size() && !values[i + 1].ghost.isEmpty();
        addRow(table, values[i], isCompared ? &values[i + 1] : nullptr);
        i += isCompared ? 1 : 0;
    }
    document.add(std::move(table));
}

} // namespace ZARN
