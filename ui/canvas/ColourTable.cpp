#include "ui/canvas/ColourTable.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/ColourContrast.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <utility>

namespace ZARN {

namespace {

constexpr double kText = 4.5, kMark = 3.0;
constexpr const char* kNoColour = QT_TRANSLATE_NOOP("ZARN::ColourTable", "there is no colour \"%1\"");
constexpr int kNameAndLight = 2; // the least words of a line

template <typename... Values> QString problem(const char* text, const Values&... values)
{
    return QCoreApplication::translate("ZARN::ColourTable", text).arg(values...);
}

} // namespace

const ColourTable& ColourTable::builtIn()
{
    static const ColourTable kTable = [] {
        ColourTable table;
        if (const QString wrong = table.read(QString::fromUtf8(paletteFile()), true); !wrong.isEmpty())
            qFatal("%s", qPrintable(wrong));
        return table;
    }();
    return kTable;
}

QString ColourTable::change(const QString& text)
{
    ColourTable changed = *this;
    QString wrong = changed.read(text, false);
    if (wrong.isEmpty())
        wrong = changed.problemOfUses();
    if (!wrong.isEmpty())
        return wrong;
    *this = std::move(changed);
    return {};
}

QString ColourTable::read(const QString& text, bool mayAdd)
{
    const QStringList lines = text.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (const QString line = lines[i].simplified(); !line.isEmpty() && !line.startsWith('#')) {
            if (const QString wrong = readLine(line, mayAdd); !wrong.isEmpty())
                return problem(QT_TRANSLATE_NOOP("ZARN::ColourTable", "Line %1: %2"), QString::number(i + 1), wrong);
        }
    }
    return {};
}

QString ColourTable::readLine(const QString& line, bool mayAdd)
{
    const QStringList words = line.left(200).split(' ');
    const auto found = mRows.find(words[0]);
    if ((found == mRows.end()) != mayAdd)
        return problem(kNoColour, words[0]);
    Row row = mayAdd ? Row() : found->second;
    if (QString wrong = readColours(row, words); !wrong.isEmpty())
        return wrong;
    mRows[words[0]] = row;
    return mayAdd ? readUses(words) : QString();
}

QString ColourTable::readColours(Row& row, const QStringList& words) const
{
    if (words.size() < kNameAndLight)
        return problem(QT_TRANSLATE_NOOP("ZARN::ColourTable", "\"%1\" has no colour"), words[0]);
    for (std::size_t medium = 0; medium < row.size(); ++medium) {
        const QString word = words.value(static_cast<qsizetype>(medium) + 1, QStringLiteral("-"));
        if (word == QStringLiteral("-"))
            continue;
        row[medium] = word.startsWith('#') ? QColor(word) : QColor();
        if (!row[medium].isValid())
            return problem(QT_TRANSLATE_NOOP("ZARN::ColourTable", "\"%1\" is no colour: #rrggbb is one"), word);
    }
    return {};
}

QString ColourTable::readUses(const QStringList& words)
{
    double least = 0.0;
    for (const QString& word : words.mid(static_cast<qsizetype>(Row().size()) + 1)) {
        if (word == QStringLiteral("text:") || word == QStringLiteral("mark:"))
            least = word == QStringLiteral("text:") ? kText : kMark;
        else if (least > 0)
            mUses.push_back({words[0], word, least});
        else
            return word;
    }
    return {};
}

QString ColourTable::problemOfUses() const
{
    for (const Use& use : mUses) {
        for (const EMedium medium : {eLight, eDark, ePaper}) {
            const QColor colour = this->colour(use.colour, medium), ground = this->colour(use.ground, medium);
            if (!colour.isValid() || !ground.isValid() || contrastRatio(colour, ground) >= use.least)
                continue;
            return problem(
                QT_TRANSLATE_NOOP("ZARN::ColourTable", "\"%1\" cannot be read on \"%2\": the contrast is %3 : 1, less than %4 : 1"),
                use.colour, use.ground, QLocale().toString(contrastRatio(colour, ground), 'f', 2), QLocale().toString(use.least, 'g', 2));
        }
    }
    return {};
}

QColor ColourTable::colour(const QString& name, EMedium medium) const
{
    const auto found = mRows.find(name);
    Q_ASSERT_X(found != mRows.end(), "ColourTable", qPrintable(name));
    return found == mRows.end() ? QColor() : found->second[medium];
}

std::map<QString, QString> ColourTable::variables(EMedium medium) const
{
    std::map<QString, QString> out;
    for (const auto& [name, row] : mRows) {
        if (row[medium].isValid())
            out[name] = row[medium].name(row[medium].alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
    }
    return out;
}

} // namespace ZARN
