#include "card/record/RecordWriter.h"

namespace ZARN {

void RecordWriter::putNumber(uint64_t value, int width)
{
    char field[8];
    for (int i = 0; i < width; ++i)
        field[i] = static_cast<char>(value >> 8 * (mBigEndian ? width - 1 - i : i));
    mBytes.append(field, static_cast<std::size_t>(width));
}

void RecordWriter::putTicks(uint64_t ticks)
{
    putNumber(ticks >> 32, 4);
    putNumber(ticks, 4);
}

void RecordWriter::putText(std::string_view text, std::size_t width)
{
    const std::string_view field = text.substr(0, width);
    mBytes.append(field).append(width - field.size(), '\0');
}

void RecordWriter::putHeader(const RecordInfo& info, uint64_t ticks)
{
    putNumber(0xABBA, 2);
    putText({}, 10);
    const QDate date = info.dateTime.date();
    const QTime time = info.dateTime.time();
    const bool dated = info.dateTime.isValid();
    putNumber(static_cast<uint64_t>(dated ? date.year() : 0), 2);
    for (const int part : {date.month(), date.day(), time.hour(), time.minute(), time.second(), 0})
        putNumber(static_cast<uint64_t>(dated ? part : 0), 1);
    putTicks(ticks);
    putNumber(info.busType, 4);
    putNumber(info.ecuSerialNumber, 4);
    for (const std::string* pText : {&info.softwarePartA, &info.ecuType, &info.engineSerial, &info.engineType, &info.softwarePartB})
        putText(*pText, 13);
    putText(info.emuSoftwareVersion, 7);
    putText({}, 20);
}

void RecordWriter::putRecord(uint32_t identifier, const StoredRecord& record)
{
    mBytes.append(record.payload.begin(), record.payload.end());
    putNumber(record.extra0, 1);
    putNumber(record.extra1, 1);
    putNumber(record.kind, 2);
    putNumber(identifier, 4);
    putNumber(record.word0, 2);
    putNumber(record.word1, 2);
    putTicks(record.ticks);
}

std::string RecordWriter::fileName(unsigned number)
{
    return QString::asprintf("LOG%05u.CAN", number).toStdString();
}

} // namespace ZARN
