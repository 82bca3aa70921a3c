#include "report/ReportText.h"

#include "app/DateText.h"

namespace ZARN {

QString reportText(const std::string& bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QString printable(const QString& text)
{
    constexpr qsizetype kMost = 4000; // characters
    QString out;
    for (const uint character : text.first(std::min(text.size(), kMost)).toUcs4()) {
        if (QChar::isPrint(character))
            out.append(QStringView(QChar::fromUcs4(character)));
        else
            out.append(' ');
    }
    return text.size() > kMost ? out + QChar(0x2026) : out;
}

QString reportDate(const QDateTime& dateTime, const QString& none)
{
    return dateTime.isValid() ? tableDateText(dateTime) : none;
}

} // namespace ZARN
