#pragma once

#include "fuzz/Input.h"
#include "fuzz/Require.h"

#include <QByteArray>
#include <QFile>

#include <functional>

// What targets share that change a database.

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// What SQLite takes in any column, whatever its type.
inline std::string literal(Input& input)
{
    const uint8_t form = input.byte();
    switch (form % 5) {
    case 0: return "NULL";
    case 1: return std::to_string(input.number<int64_t>());
    case 2: return form & 0x80 ? "9e999" : QByteArray::number(input.number<float>(), 'g', 17).replace("nan", "0").replace("inf", "9e999").toStdString();
    case 3: return "x'" + QByteArray::fromStdString(input.text(40)).toHex().toStdString() + "'";
    default: return "CAST(x'" + QByteArray::fromStdString(input.text(40)).toHex().toStdString() + "' AS TEXT)";
    }
}

inline void changeBytes(QByteArray& bytes, Input& input)
{
    while (!input.empty()) {
        const auto place = input.number<uint16_t>() % bytes.size();
        bytes[place] = static_cast<char>(input.byte());
        if (input.byte() == 0xFF)
            bytes.truncate(place);
        if (bytes.isEmpty())
            return;
    }
}

/// Puts a database in place of a file, of which the input changes bytes, or fields by means of a function. @return what the file then holds
inline QByteArray putChanged(const QString& path, QByteArray bytes, Input& input, const std::function<void()>& changeFields)
{
    for (const char* pBeside : {"", "-wal", "-shm", "-journal"})
        QFile::remove(path + pBeside);
    const bool areBytes = input.byte() % 2 == 0;
    if (areBytes)
        changeBytes(bytes, input);
    QFile file(path);
    REQUIRE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    if (!areBytes)
        changeFields();
    return contentOf(path);
}
