#include "app/StyleHandler.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

namespace {

/// Calls `store` with name and value of every property of a block's body. What follows the last ";" is no property.
template <typename Store> void forEachProperty(const QString& body, Store store)
{
    const QStringList properties = body.split(';');
    for (int i = 0; i + 1 < properties.size(); ++i) {
        const auto colon = properties[i].indexOf(':');
        store(properties[i].left(colon).trimmed(), colon < 0 ? QString() : properties[i].mid(colon + 1).trimmed());
    }
}

} // namespace

StyleHandler& StyleHandler::instance()
{
    static StyleHandler handler;
    return handler;
}

QString StyleHandler::readStyle(const QString& path)
{
    mStyleSheet.clear();
    mVariables.clear();
    mEntries.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return mStyleSheet;
    mStyleSheet = QTextStream(&file).readAll();
    static const QRegularExpression comments("(?:/\\*(?:[^*]|(?:\\*+[^*/]))*\\*+/)|(?://.*)");
    mStyleSheet.remove(comments);
    // The walk puts variables into the sheet; the pieces are those of the text before.
    const QStringList pieces = mStyleSheet.split('}');
    for (int i = 0; i + 1 < pieces.size(); ++i)
        readSection(pieces[i]);
    mStyleSheet = insert(mStyleSheet, mShared);
    return mStyleSheet;
}

QString StyleHandler::insert(QString sheet, const Properties& variables)
{
    for (const auto& [name, value] : variables)
        sheet.replace("$(" + name + ")", value);
    return sheet;
}

QStringList StyleHandler::unknown() const
{
    static const QRegularExpression reference("\\$\\(([^)]*)\\)");
    QStringList names;
    for (auto found = reference.globalMatch(mStyleSheet); found.hasNext();)
        names.append(found.next().captured(1));
    names.removeDuplicates();
    return names;
}

void StyleHandler::readSection(const QString& piece)
{
    const auto brace = piece.indexOf('{');
    const QString name = piece.left(brace).trimmed();
    const QString body = brace < 0 ? QString() : piece.mid(brace + 1).trimmed();
    if (name.section(':', 0, 0) == "Variables")
        readVariables(body);
    else
        readEntry(name, body);
}

void StyleHandler::readVariables(const QString& body)
{
    forEachProperty(body, [this](const QString& name, const QString& value) { mVariables[name] = value; });
    mStyleSheet = insert(mStyleSheet, mVariables);
}

void StyleHandler::readEntry(const QString& name, const QString& body)
{
    Properties& entry = mEntries[name];
    forEachProperty(body, [&entry](const QString& property, const QString& value) { entry[property] = value; });
}

QString StyleHandler::getParameter(const QString& name) const
{
    const auto found = mVariables.find(name);
    return found == mVariables.end() ? QString() : found->second;
}
