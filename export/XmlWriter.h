#pragma once

#include <string>
#include <string_view>

namespace ZARN {

class SafeFile;

/// Writes an XML document element by element, laid out as the program's XML files are: indented by 4 blanks, an element that holds
/// text on one line. Texts are UTF-8; characters that no XML file can hold are left out. A failed write is the file's to tell.
class XmlWriter {
public:
    explicit XmlWriter(SafeFile& file) : mFile(file) {}

    void declaration();
    /// @param attribute " name=\"value\"", well-formed, or nothing.
    void begin(const char* element, std::string_view attribute = {});
    void end(const char* element);
    /// An element that holds nothing but text.
    void text(const char* element, std::string_view content);
    /// The same for content that comes in pieces and needs no escaping.
    void beginPlain(const char* element);
    void plain(std::string_view piece);
    void endPlain(const char* element);
    /// Hands everything to the file. @return false when any of it could not be written.
    bool flush();

private:
    static constexpr std::size_t kFlushSize = std::size_t(64) * 1024;
    void indent();
    void appendEscaped(std::string_view content);
    void flushWhenFull();

    SafeFile& mFile;
    std::string mText;
    std::size_t mDepth = 0;
    bool mWritten = true;
};

} // namespace ZARN
