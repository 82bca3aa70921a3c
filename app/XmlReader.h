#pragma once

#include <QDomDocument>

#include <optional>
#include <string>

namespace ZARN {

/// Why a file cannot be read as XML, as a sentence for people, and where. Line and column count from 1; both are 0 where the
/// reason has no place in the text.
struct XmlProblem {
    int line = 0;
    int column = 0;
    QString text;
    bool isUnread = false; ///< the file system gave nothing
};

/// A file as XmlGuard and the parser let it pass: its text, and the document made from it.
struct XmlSource {
    QString text;
    QDomDocument document;
};

/// Reads and parses a file. @return nothing when that is done; `source` is else left as it was.
std::optional<XmlProblem> readXml(const std::string& fileName, XmlSource& source);

} // namespace ZARN
