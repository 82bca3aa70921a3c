#include "app/XmlGuard.h"

#include <QByteArrayView>
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
            if (!markup() || mMemory > XmlGuard::maxMemory)
                return false;
        }
        return mDepth == 0 && mHasElement;
    }

private:
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
            return false;
        if (rest.starts_with("<?"))
            return skipPast("?>", 2);
        return tag(rest.substr(0, XmlGuard::maxTagSize));
    }

    bool skipPast(std::string_view end, std::size_t offset)
    {
        const std::size_t found = mText.find(end, mPosition + offset);
        if (found == std::string_view::npos)
            return false;
        mPosition = found + end.size();
        mMemory += XmlGuard::nodeMemory;
        return true;
    }

    bool tag(std::string_view text)
    {
        std::size_t attributes = 0;
        const std::size_t end = tagEnd(text, attributes);
        if (end == std::string_view::npos)
            return false;
        mPosition += end + 1;
        if (text[1] == '/')
            return mDepth-- > 0;
        if (mDepth >= XmlGuard::maxDepth)
            return false;
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

} // namespace

std::optional<QString> XmlGuard::pass(std::string_view fileBytes)
{
    if (fileBytes.size() > maxFileSize)
        return std::nullopt;
    QStringDecoder decoder = decoderOf(fileBytes);
    if (!decoder.isValid())
        return std::nullopt;
    const QString text = decoder(QByteArrayView(fileBytes.data(), static_cast<qsizetype>(fileBytes.size())));
    if (decoder.hasError() || static_cast<std::size_t>(text.size()) > maxMemory / sizeof(QChar))
        return std::nullopt;
    const QByteArray utf8 = text.toUtf8();
    if (!accepts(std::string_view(utf8.data(), static_cast<std::size_t>(utf8.size()))))
        return std::nullopt;
    return text;
}

bool XmlGuard::accepts(std::string_view utf8)
{
    // No XML text holds this character, and a parser may take it for the end.
    return utf8.find('\0') == std::string_view::npos && Scanner(utf8).run();
}

} // namespace ZARN
