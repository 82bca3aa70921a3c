#pragma once

#include <QDomDocument>
#include <QString>

#include <optional>
#include <string>

namespace ZARN {

class Console;

/// The toolbox through which every XML file of the program (settings, project, profile, KML) is created, read and
/// written. Holds nothing but the console for its messages; callers make one on the stack for each use.
class XmlHandler {
public:
    /// The first one made fixes the order in which attributes are written, for the whole program.
    explicit XmlHandler(const Console& console);

    QDomElement xmlCreateElement(QDomDocument& document, QDomDocument& parent, const QString& name) const;
    QDomElement xmlCreateElement(QDomDocument& document, QDomElement& parent, const QString& name) const;
    QDomText xmlCreateTextElement(QDomDocument& document, QDomElement& parent, const QString& text) const;

    void xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, const QString& value) const;
    void xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, const std::string& value) const;
    void xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, int value) const;
    void xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, long value) const;
    /// Written as a signed number: values above the signed range come out negative.
    void xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, unsigned long value) const;
    void xmlCreateAttribute(QDomDocument& document, QDomElement& element, const QString& name, double value) const;
    void xmlCreateParameter(QDomElement& element, const QString& name, const std::string& value) const;

    QString xmlGetStringAttribute(const QDomNamedNodeMap& attributes, const QString& name, const QString& fallback) const;
    std::string xmlGetStdStringAttribute(const QDomNamedNodeMap& attributes, const QString& name, const std::string& fallback) const;
    /// The number that an attribute's text stands for; nothing when it is no 32-bit integer.
    static std::optional<int> wholeNumber(const QString& text);
    /// Automatic base: "0x" hexadecimal, leading "0" octal, else decimal. Text that is no 32-bit integer gives 0.
    int xmlGetIntAttribute(const QDomNamedNodeMap& attributes, const QString& name, int fallback) const;
    /// "." is the decimal point. Text that is no number gives 0.0, one too large for a double an infinity.
    double xmlGetDoubleAttribute(const QDomNamedNodeMap& attributes, const QString& name, double fallback) const;
    bool xmlGetBoolAttribute(const QDomNamedNodeMap& attributes, const QString& name, bool fallback) const;

    /// Writes the document, indented by 4 blanks, through SafeFile. @return false, with a console line, when it was not written.
    bool xmlWriteFile(const QDomDocument& document, const QString& path) const;
    bool xmlWriteFile(const QDomDocument& document, const QString& directory, const QString& fileName) const;
    /// The same with a document that is a text already.
    bool xmlWriteText(const std::string& text, const QString& path) const;
    /// Reads and parses a file that XmlGuard lets pass. @return false, with a console line, when it cannot be opened or parsed;
    /// the document is then left as it was.
    bool xmlReadFile(QDomDocument& document, const QString& path) const;
    bool xmlReadFile(QDomDocument& document, const QString& directory, const QString& fileName) const;

protected:
    const Console& mConsole;
};

} // namespace ZARN
