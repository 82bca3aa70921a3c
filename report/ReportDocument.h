#pragma once

#include "analysis/CycleReview.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>
#include <variant>

class QPainter;

namespace ZARN {

/// Draws at the painter's origin on a place of that size, in points.
using ReportDrawing = std::function<void(QPainter&, const QSizeF&)>;

/// A drawing with its words.
struct ReportPicture {
    QString text;           ///< what it shows, for who does not see it
    double height = 0.0;    ///< in points, of a page's width
    bool takesPage = false; ///< on paper it takes what is left of a page
    ReportDrawing draw;
};

/// Begins a section.
struct ReportHeading {
    QString text;
};

/// A text of its own.
struct ReportParagraph {
    enum EKind { eNormal, eQuiet, eAlert };
    QString text;
    EKind kind = eNormal;
};

/// The answer that a report begins with.
struct ReportVerdict {
    EVerdict verdict = EVerdict::eUnknown;
    QString word;
    QString sentence;
};

/// A name and what it stands for.
struct ReportPair {
    QString name;
    QString value;
};

/// Names and what they stand for, in two columns.
struct ReportPairs {
    std::vector<ReportPair> entries;
};

/// The same, large and side by side.
struct ReportFigures {
    std::vector<ReportPair> entries;
};

/// Incidents that are told in one sentence.
struct ReportIncident {
    EVerdict verdict = EVerdict::eWarning; ///< that they make
    QString state;                         ///< in a word
    QString time;
    QString what;
    QString rest; ///< what follows in the sentence, with the comma that it begins with
    ReportPicture graph;
};

/// One column of a table: its title and what stands below it.
struct ReportColumn {
    QString title;
    bool isNumber = false; ///< aligned to the right
    QStringList cells = {};
    bool isHead = false; ///< says what its row is about
};

/// Columns of as many cells each.
struct ReportTable {
    QString text; ///< what it is about
    std::vector<ReportColumn> columns;
};

using ReportBlock =
    std::variant<ReportHeading, ReportParagraph, ReportVerdict, ReportPairs, ReportFigures, ReportIncident, ReportTable, ReportPicture>;

/// What a report says, in the order in which it says it; on paper and elsewhere. Texts may hold whatever a file does: who writes them makes
/// them fit to be shown. Drawings refer to what the report is about.
struct ReportDocument {
    QString language; ///< code of the one that it is written in
    QString title;
    QString head; ///< what it is about, in a line
    QString creator;
    bool isLandscape = false; ///< on paper, for tables of many columns
    std::vector<ReportBlock> blocks;

    void add(ReportBlock block) { blocks.push_back(std::move(block)); }
};

} // namespace ZARN
