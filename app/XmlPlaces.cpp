#include "app/XmlPlaces.h"

#include <algorithm>

namespace ZARN {

namespace {

TextPlace endOf(const QDomElement& element)
{
    return {element.lineNumber(), element.columnNumber()};
}

/// The next start tag at or behind a position of a well-formed text.
qsizetype nextStartTag(QStringView text, qsizetype position)
{
    while ((position = text.indexOf(u'<', position)) >= 0) {
        const QStringView rest = text.sliced(position);
        if (rest.startsWith(QLatin1String("<!--")))
            position = text.indexOf(QLatin1String("-->"), position + 4);
        else if (rest.startsWith(QLatin1String("<![CDATA[")))
            position = text.indexOf(QLatin1String("]]>"), position);
        else if (rest.startsWith(QLatin1String("<?")))
            position = text.indexOf(QLatin1String("?>"), position);
        else if (!rest.startsWith(QLatin1String("</")))
            return position;
        else
            ++position;
        if (position < 0)
            return position;
    }
    return position;
}

/// The next element of the document's order.
QDomElement following(QDomElement element)
{
    if (const QDomElement child = element.firstChildElement(); !child.isNull())
        return child;
    while (!element.isNull() && element.nextSiblingElement().isNull())
        element = element.parentNode().toElement();
    return element.isNull() ? element : element.nextSiblingElement();
}

} // namespace

XmlPlaces::XmlPlaces(const QString& text, const QDomElement& root) : mText(text)
{
    findLines();
    findTags(root);
}

void XmlPlaces::findLines()
{
    mLines.push_back(0);
    for (qsizetype position = 0; (position = mText.indexOf(u'\n', position)) >= 0;)
        mLines.push_back(++position);
}

void XmlPlaces::findTags(const QDomElement& root)
{
    qsizetype position = 0;
    for (QDomElement element = root; !element.isNull(); element = following(element)) {
        position = nextStartTag(mText, position);
        if (position < 0)
            return;
        mStarts.push_back({endOf(element), position++});
    }
}

TextPlace XmlPlaces::of(const QDomElement& element, const QString& attribute) const
{
    const auto start = std::ranges::lower_bound(mStarts, endOf(element), {}, &Start::end);
    if (start == mStarts.end() || start->end != endOf(element))
        return endOf(element);
    const qsizetype position = attribute.isEmpty() ? start->position : attributePosition(start->position, attribute);
    const auto line = std::ranges::upper_bound(mLines, position) - 1;
    return {static_cast<int>(line - mLines.begin()) + 1, static_cast<int>(position - *line) + 1};
}

qsizetype XmlPlaces::attributePosition(qsizetype tag, const QString& attribute) const
{
    qsizetype position = tag;
    while (mText[position] != u'>') {
        if (mText[position] == u'"' || mText[position] == u'\'')
            position = mText.indexOf(mText[position], position + 1);
        if (mText[position++].isSpace() && QStringView(mText).sliced(position).startsWith(attribute)) {
            const QChar next = mText[position + attribute.size()];
            if (next == u'=' || next.isSpace())
                return position;
        }
    }
    return tag;
}

} // namespace ZARN
