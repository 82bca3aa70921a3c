#include "app/XmlGuard.h"

#include <QByteArrayView>
#include <QCoreApplication>
#include <QStringConverter>

#include <algorithm>
#include <string>

namespace ZARN {

namespace {

/// The walk over the markup of one text.
class Scanner {
public:
    explicit Scanner(std::string_view text) : mText(text) {}

    bool run()
    {
        for (std::size_t next = 0; (next = mText.find('<', mPosition)) != std::string_view::npos;) {
            countText(mText.substr(mPosition, next - mPosition));
            mPosition = next;
            if (!markup())
                return false;
            if (mMemory > XmlGuard::maxMemory)
                return refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "Its elements, attributes and texts would take more than 64 MiB of memory."));
        }
        mPosition = mText.size();
        if (!mHasElement)
            return malformed(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "there is no element"));
        return mDepth == 0 || malformed(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "an element has no end tag"));
    }

    /// After a run that failed.
    [[nodiscard]] const char* reason() const { return mpReason; }
    [[nodiscard]] bool isMalformed() const { return mIsMalformed; }
    [[nodiscard]] std::size_t position() const { return mPosition; }

private:
    bool refuse(const char* pReason)
    {
        mpReason = pReason;
        return false;
    }

    bool malformed(const char* pReason)
    {
        mIsMalformed = true;
        return refuse(pReason);
    }

    /// Blanks between elements make no node.
    void countText(std::string_view text)
    {
        if (text.find_first_not_of(" \t\r\n") != std::string_view::npos)
            mMemory += XmlGuard::nodeMemory;
    }

    bool markup()
    {
        const std::string_view rest = mText.substr(mPosition);
        if (rest.starts_with("<!--"))
            return skipPast("-->", 4);
        if (rest.starts_with("<![CDATA["))
            return skipPast("]]>", 9);
        if (rest.starts_with("<!"))
            return refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "It has a declaration of a document type, which is not read."));
        if (rest.starts_with("<?"))
            return skipPast("?>", 2);
        return tag(rest.substr(0, XmlGuard::maxTagSize), rest.size() > XmlGuard::maxTagSize);
    }

    bool skipPast(std::string_view end, std::size_t offset)
    {
        const std::size_t found = mText.find(end, mPosition + offset);
        if (found == std::string_view::npos)
            return malformed(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "a comment, a section or an instruction has no end"));
        mPosition = found + end.size();
        mMemory += XmlGuard::nodeMemory;
        return true;
    }

    bool tag(std::string_view text, bool isCut)
    {
        std::size_t attributes = 0;
        const std::size_t end = tagEnd(text, attributes);
        if (attributes > XmlGuard::maxAttributes)
            return refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "A tag has more than 1,000 attributes."));
        if (end == std::string_view::npos) {
            return isCut ? refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "A tag has more than 64 KiB, or no end."))
                         : malformed(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "a tag has no end, or a quotation mark is missing in it"));
        }
        if (text[1] == '/') {
            if (mDepth == 0)
                return malformed(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "an end tag has no element"));
            --mDepth;
            mPosition += end + 1;
            return true;
        }
        if (mDepth >= XmlGuard::maxDepth)
            return refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "It has more than 64 levels of elements."));
        mPosition += end + 1;
        mHasElement = true;
        mMemory += XmlGuard::nodeMemory + attributes * XmlGuard::attributeMemory;
        if (text[end - 1] != '/')
            ++mDepth;
        return true;
    }

    /// The position of the ">" that ends the tag; one within a quoted value does not. Nothing when there are too many values.
    static std::size_t tagEnd(std::string_view text, std::size_t& values)
    {
        std::size_t position = 1;
        while ((position = text.find_first_of("\"'>", position)) != std::string_view::npos && text[position] != '>') {
            position = text.find(text[position], position + 1);
            if (position == std::string_view::npos || ++values > XmlGuard::maxAttributes)
                return std::string_view::npos;
            ++position;
        }
        return position;
    }

    std::string_view mText;
    std::size_t mPosition = 0;
    std::size_t mDepth = 0;
    std::size_t mMemory = 0;
    bool mHasElement = false;
    bool mIsMalformed = false;
    const char* mpReason = "";
};

/// The name in the XML declaration's encoding="..."; empty when there is none.
std::string_view declaredName(std::string_view bytes)
{
    constexpr std::size_t longestDeclaration = 1024;
    std::string_view text = bytes.substr(0, longestDeclaration);
    if (!text.starts_with("<?xml"))
        return {};
    text = text.substr(0, text.find("?>"));
    const std::size_t keyword = text.find("encoding");
    if (keyword == std::string_view::npos)
        return {};
    const std::size_t open = text.find_first_of("\"'", keyword);
    if (open == std::string_view::npos)
        return {};
    return text.substr(open + 1, text.find(text[open], open + 1) - open - 1);
}

/// By the first bytes, the declaration or, without either, UTF-8. Not valid for a name that is not known.
QStringDecoder decoderOf(std::string_view bytes)
{
    // Stateless, so that a character cut off by the end of the file is an error too.
    constexpr auto flags = QStringConverter::Flag::Stateless;
    const QByteArrayView start(bytes.data(), static_cast<qsizetype>(std::min<std::size_t>(bytes.size(), 4)));
    if (const auto recognised = QStringConverter::encodingForData(start, u'<'))
        return QStringDecoder(*recognised, flags);
    const std::string name(declaredName(bytes));
    return name.empty() ? QStringDecoder(QStringConverter::Utf8, flags) : QStringDecoder(name.c_str(), flags);
}

XmlGuard::Refusal refusalAt(const QString& textBefore, const char* pReason, bool isMalformed)
{
    return {pReason, static_cast<int>(textBefore.count(u'\n')) + 1, static_cast<int>(textBefore.size() - textBefore.lastIndexOf(u'\n')),
            isMalformed, {}};
}

} // namespace

std::optional<QString> XmlGuard::pass(std::string_view fileBytes, Refusal* pRefusal)
{
    const auto refuse = [pRefusal](const char* pReason) {
        if (pRefusal)
            *pRefusal = {pReason, 0, 0, false, {}};
        return std::nullopt;
    };
    if (fileBytes.size() > maxFileSize)
        return refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "It is larger than 32 MiB."));
    QStringDecoder decoder = decoderOf(fileBytes);
    if (!decoder.isValid())
        return refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "It names an encoding of its text that is not known."));
    const QString text = decoder(QByteArrayView(fileBytes.data(), static_cast<qsizetype>(fileBytes.size())));
    if (decoder.hasError()) {
        // The decoder puts this character where it does not understand the bytes.
        const qsizetype place = text.indexOf(QChar::ReplacementCharacter);
        if (pRefusal)
            *pRefusal = refusalAt(text.left(place), QT_TRANSLATE_NOOP("ZARN::XmlGuard", "It has bytes that are no text in its encoding."), false);
        return std::nullopt;
    }
    if (static_cast<std::size_t>(text.size()) > maxMemory / sizeof(QChar))
        return refuse(QT_TRANSLATE_NOOP("ZARN::XmlGuard", "It is larger than 32 MiB."));
    const QByteArray utf8 = text.toUtf8();
    if (!accepts(std::string_view(utf8.data(), static_cast<std::size_t>(utf8.size())), pRefusal))
        return std::nullopt;
    return text;
}

bool XmlGuard::accepts(std::string_view utf8, Refusal* pRefusal)
{
    const auto before = [utf8](std::size_t position) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(position)); };
    // No XML text holds this character, and a parser may take it for the end.
    const std::size_t zero = utf8.find('\0');
    if (zero != std::string_view::npos) {
        if (pRefusal)
            *pRefusal = refusalAt(before(zero), QT_TRANSLATE_NOOP("ZARN::XmlGuard", "the character with code 0 is no text"), true);
        return false;
    }
    Scanner scanner(utf8);
    const bool isGood = scanner.run();
    if (!isGood && pRefusal) {
        const QString textBefore = before(scanner.position());
        *pRefusal = refusalAt(textBefore, scanner.reason(), scanner.isMalformed());
        pRefusal->textBefore = textBefore;
    }
    return isGood;
}

} // namespace ZARN
