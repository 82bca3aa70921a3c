#pragma once

#include "profile/FormulaDefinition.h"

class QDomElement;
class QDomDocument;
class QString;

namespace ZARN {

class XmlHandler;

/// Formulas as they stand in projects and layouts: a list element with one element each.
class FormulaXml {
public:
    static constexpr const char* kList = "Formulas";
    static constexpr std::size_t kMost = 200; ///< in one list; what follows is not taken

    explicit FormulaXml(const XmlHandler& xml) : mXml(xml) {}

    /// The formulas of all lists below an element; those without a name or an expression are left out.
    [[nodiscard]] FormulaDefinitions read(const QDomElement& parent) const;
    /// The formulas of a file; none when there is no such file, or it cannot be read, with a console line.
    [[nodiscard]] FormulaDefinitions readFile(const QString& path) const;
    /// Appends a list with them; nothing when there are none.
    void write(QDomDocument& document, QDomElement& parent, const FormulaDefinitions& formulas) const;

private:
    const XmlHandler& mXml;
};

} // namespace ZARN
