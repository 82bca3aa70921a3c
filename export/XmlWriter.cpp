#include "export/XmlWriter.h"

#include "app/SafeFile.h"

namespace ZARN {

namespace {

constexpr std::size_t kIndentation = 4;

/// U+FFFE and U+FFFF, the only characters above the control codes that XML excludes and UTF-8 from a Unicode text can hold.
bool isExcluded(std::string_view character)
{
    return character.starts_with("\xEF\xBF\xBE") || character.starts_with("\xEF\xBF\xBF");
}

} // namespace

void XmlWriter::declaration()
{
    mText += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
}

void XmlWriter::begin(const char* element, std::string_view attribute)
{
    indent();
    mText.append("<").append(element).append(attribute).append(">\n");
    ++mDepth;
}

void XmlWriter::end(const char* element)
{
    --mDepth;
    indent();
    mText.append("</").append(element).append(">\n");
    flushWhenFull();
}

void XmlWriter::text(const char* element, std::string_view content)
{
    beginPlain(element);
    appendEscaped(content);
    endPlain(element);
}

void XmlWriter::beginPlain(const char* element)
{
    indent();
    mText.append("<").append(element).append(">");
}

void XmlWriter::plain(std::string_view piece)
{
    mText += piece;
    flushWhenFull();
}

void XmlWriter::endPlain(const char* element)
{
    mText.append("</").append(element).append(">\n");
    flushWhenFull();
}

void XmlWriter::indent()
{
    mText.append(mDepth * kIndentation, ' ');
}

void XmlWriter::appendEscaped(std::string_view content)
{
    for (std::size_t i = 0; i < content.size(); ++i) {
        const char character = content[i];
        switch (character) {
        case '<': mText += "&lt;"; break;
        case '>': mText += "&gt;"; break;
        case '&': mText += "&amp;"; break;
        case '\r': mText += "&#xd;"; break; // a reader would make a line feed of it
        case '\n':
        case '\t': mText += character; break;
        default:
            if (isExcluded(content.substr(i, 3)))
                i += 2;
            else if (static_cast<unsigned char>(character) >= 0x20)
                mText += character;
        }
    }
}

void XmlWriter::flushWhenFull()
{
    if (mText.size() >= kFlushSize)
        flush();
}

bool XmlWriter::flush()
{
    mWritten = mFile.write(mText) && mWritten;
    mText.clear();
    return mWritten;
}

} // namespace ZARN
