#pragma once

#include <QDomElement>

#include <vector>

namespace ZARN {

/// A place in a text; both count from 1.
struct TextPlace {
    int line = 0;
    int column = 0;
    auto operator<=>(const TextPlace&) const = default;
};

/// Where the elements and attributes of a document begin in the text that it was read from. The document itself knows where their
/// tags end, which is another line when a tag has several.
class XmlPlaces {
public:
    XmlPlaces(const QString& text, const QDomElement& root);

    /// @param attribute "" for the element, or for an attribute that it does not have.
    [[nodiscard]] TextPlace of(const QDomElement& element, const QString& attribute = {}) const;

private:
    struct Start {
        TextPlace end; ///< as the document has it
        qsizetype position;
    };

    void findLines();
    void findTags(const QDomElement& root);
    [[nodiscard]] qsizetype attributePosition(qsizetype tag, const QString& attribute) const;

    const QString& mText;
    std::vector<qsizetype> mLines;
    std::vector<Start> mStarts; ///< in the text's order, and so in that of the ends
};

} // namespace ZARN
