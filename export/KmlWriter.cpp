#include "export/KmlWriter.h"

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

void KmlWriter::declaration()
{
    mText += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
}

void KmlWriter::begin(const char* element, std::string_view attribute)
{
    indent();
    mText.append("<").append(element).append(attribute).append(">\n");
    ++mDepth;
}

void KmlWriter::end(const char* element)
{
    --mDepth;
    indent();
    mText.append("</").append(element).append(">\n");
    flushWhenFull();
}

void KmlWriter::text(const char* element, std::string_view content)
{
    beginPlain(element);
    appendEscaped(content);
    endPlain(element);
}

void KmlWriter::beginPlain(const char* element)
{
    indent();
    mText.append("<").append(element).append(">");
}

void KmlWriter::plain(std::string_view piece)
{
    mText += piece;
    flushWhenFull();
}

void KmlWriter::endPlain(const char* element)
{
    mText.append("</").append(element).append(">\n");
    flushWhenFull();
}

void KmlWriter::indent()
{
    mText.append(mDepth * kIndentation, ' ');
}

void KmlWriter::appendEscaped(std::string_view content)
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

void KmlWriter::flushWhenFull()
{
    if (mText.size() >= kFlushSize)
        flush();
}

bool KmlWriter::flush()
{
    mWritten = mFile.write(mText) && mWritten;
    mText.clear();
    return mWritten;
}

} // namespace ZARN
