#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <string_view>

namespace ZARN {

/// Stands in front of the XML parser, which a small file can make consume gigabytes (entities), minutes (huge tags) or
/// the stack (deep nesting). One linear pass over the text decides; nothing is allocated in proportion to what it says.
///
/// The pass knows comments, CDATA sections, processing instructions and quoted attribute values. On text that is
/// well-formed up to some point it agrees with the parser up to that point, and beyond it the parser does not go.
class XmlGuard {
public:
    static constexpr std::size_t maxFileSize = std::size_t(32) * 1024 * 1024; ///< bytes of the file
    static constexpr std::size_t maxTagSize = std::size_t(64) * 1024;         ///< bytes of a tag in UTF-8, "<" and ">" included
    static constexpr std::size_t maxAttributes = 1000;           ///< of a tag: the parser's time grows with their square
    static constexpr std::size_t maxDepth = 64;                  ///< the root element has depth 1
    static constexpr std::size_t maxMemory = std::size_t(64) * 1024 * 1024; ///< bytes of the decoded text, and of the document's nodes
    static constexpr std::size_t nodeMemory = 256;      ///< about what the document takes for an element, text, comment, instruction or CDATA section
    static constexpr std::size_t attributeMemory = 512; ///< and for an attribute, which is a node, its text and a place in a table

    /// Why and where a text is refused. The reason is an English sentence of the context "ZARN::XmlGuard".
    struct Refusal {
        const char* reason = "";
        int line = 0; ///< 0 with the column where the reason has no place in the text; both count from 1
        int column = 0;
        bool isMalformed = false; ///< no limit is broken: it is no XML
        QString textBefore;       ///< what was judged good until then; empty where nothing was
    };

    /// Decodes a file's bytes, in any encoding that the parser knows, and judges the text. The encoding follows from the byte
    /// order mark, the first bytes or the XML declaration; the parser is to be given the decoded text, so that it cannot understand another one.
    /// @return the text, or nothing when the bytes are not valid in their encoding or break a limit.
    static std::optional<QString> pass(std::string_view fileBytes, Refusal* pRefusal = nullptr);

    /// Judges text in UTF-8 without a byte order mark: balanced tags, no document type declaration, all limits but the file size kept.
    static bool accepts(std::string_view utf8, Refusal* pRefusal = nullptr);
};

} // namespace ZARN
