#include "cli/VisibleText.h"

#include "app/FileName.h"

#include <algorithm>
#include <cstdio>

namespace ZARN {

namespace {

bool isControl(char16_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

/// A byte that is no UTF-8, as names of files have it when they are decoded.
bool isStrayByte(char16_t character)
{
    return character >= 0xDC80 && character <= 0xDCFF;
}

std::string escape(char16_t character)
{
    switch (character) {
    case '\n': return "\\n";
    case '\r': return "\\r";
    case '\t': return "\\t";
    default: break;
    }
    const bool isByte = isControl(character) || isStrayByte(character);
    char text[16];
    std::snprintf(text, sizeof text, isByte ? "\\x%02x" : "\\u%04x", static_cast<unsigned int>(isByte ? character & 0xFF : character));
    return text;
}

} // namespace

bool isInvisible(char16_t character)
{
    return isControl(character) || character == 0x061C || (character >= 0x200B && character <= 0x200F) ||
           (character >= 0x2028 && character <= 0x202E) || (character >= 0x2060 && character <= 0x206F) || character == 0xFEFF;
}

std::string visibleText(std::string_view text)
{
    if (std::all_of(text.begin(), text.end(), [](char character) { return character >= 0x20 && character < 0x7F; }))
        return std::string(text);
    const QString characters = decodeFileName(std::string(text));
    std::string visible;
    qsizetype begin = 0;
    const auto appendUpTo = [&](qsizetype end) { visible += QStringView(characters).mid(begin, end - begin).toUtf8().toStdString(); };
    for (qsizetype i = 0; i < characters.size(); ++i) {
        const char16_t character = characters[i].unicode();
        const bool isPair = i > 0 && characters[i - 1].isHighSurrogate();
        if (!isInvisible(character) && (isPair || !isStrayByte(character)))
            continue;
        appendUpTo(i);
        visible += escape(character);
        begin = i + 1;
    }
    appendUpTo(characters.size());
    return visible;
}

} // namespace ZARN
