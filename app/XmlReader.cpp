#include "app/XmlReader.h"

#include "app/RegularFile.h"
#include "app/XmlGuard.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>
#include <cerrno>

namespace ZARN {

namespace {

QString said(const char* text)
{
    return QCoreApplication::translate("ZARN::XmlReader", text);
}

QString notWellFormed(const QString& reason)
{
    QString text = said(QT_TRANSLATE_NOOP("ZARN::XmlReader", "It is no well-formed XML: %1")).arg(reason.trimmed());
    return text.endsWith(u'.') ? text : text + u'.';
}

/// The guard sees less than the parser does: a tag left open is found at the end of the text by the one, at the tag that
/// does not fit by the other. What stands before the guard's finding has kept all its limits, so the parser may have it.
XmlProblem problemOf(const XmlGuard::Refusal& refusal)
{
    QXmlStreamReader parser(refusal.textBefore);
    parser.setNamespaceProcessing(false);
    while (!refusal.textBefore.isEmpty() && !parser.atEnd())
        parser.readNext();
    if (parser.error() != QXmlStreamReader::NoError && parser.error() != QXmlStreamReader::PrematureEndOfDocumentError)
        return {static_cast<int>(parser.lineNumber()), std::max(1, static_cast<int>(parser.columnNumber())),
                notWellFormed(parser.errorString())};
    const QString reason = QCoreApplication::translate("ZARN::XmlGuard", refusal.reason);
    return {refusal.line, refusal.column, refusal.isMalformed ? notWellFormed(reason) : reason};
}

} // namespace

std::optional<XmlProblem> readXml(const std::string& fileName, XmlSource& source)
{
    errno = 0;
    const auto bytes = readRegularFile(fileName, XmlGuard::maxFileSize);
    if (!bytes) {
        const QString reason = errno == 0 ? said(QT_TRANSLATE_NOOP("ZARN::XmlReader", "it is no ordinary file")) : qt_error_string(errno);
        return XmlProblem{0, 0, said(QT_TRANSLATE_NOOP("ZARN::XmlReader", "It cannot be read: %1.")).arg(reason), true};
    }
    XmlGuard::Refusal refusal;
    const auto text = XmlGuard::pass(*bytes, &refusal);
    if (!text)
        return problemOf(refusal);
    QDomDocument document;
    QString reason;
    XmlProblem problem;
    if (!document.setContent(*text, &reason, &problem.line, &problem.column)) {
        problem.column = std::max(1, problem.column);
        problem.text = notWellFormed(reason);
        return problem;
    }
    source = {*text, document};
    return std::nullopt;
}

} // namespace ZARN
