#include "app/Console.h"
#include "app/Progress.h"
#include "card/record/ByteOrder.h"
#include "card/record/RecordFile.h"
#include "support/CardBuilder.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

#include <sys/stat.h>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

const QDateTime kNoon(QDate(2024, 2, 29), QTime(12, 30, 59), Qt::UTC);
const std::vector<std::string> kTexts{"SW-A-12345678", "TYPE 9", "", "ENGINE", "a longer text than its field", "1.2.3.4"};

struct ProgressLog : Progress {
    void setProgress(int percent) override { values.push_back(percent); }
    std::vector<int> values;
};

/// A reader with its surroundings, and a folder for its file.
struct Reader {
    QString write(const QByteArray& bytes, const QString& name = "A.CAN") const
    {
        QFile target(folder.filePath(name));
        if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(target.fileName()));
        return target.fileName();
    }
    RecordFile& read(const QByteArray& bytes)
    {
        file.readRecordInfo(write(bytes));
        return file;
    }

    QTemporaryDir folder;
    std::string lines;
    std::string errors;
    Console console{[this](std::string_view text) { lines += text; }, [this](std::string_view text) { errors += text; }};
    ProgressLog progress;
    RecordFile file{console, progress};
    RecordData data;
};

/// Bytes of which one read fails, once.
struct FailingFile {
    FILE* open()
    {
        const cookie_io_functions_t functions{read, nullptr, seek, nullptr};
        FILE* pFile = fopencookie(this, "rb", functions);
        std::setvbuf(pFile, nullptr, _IONBF, 0);
        return pFile;
    }
    static ssize_t read(void* pThis, char* pOut, std::size_t size)
    {
        auto* pFile = static_cast<FailingFile*>(pThis);
        if (pFile->readsLeft-- == 0) {
            errno = EIO;
            return -1;
        }
        const auto count = std::min<qsizetype>(static_cast<qsizetype>(size), pFile->bytes.size() - pFile->position);
        std::memcpy(pOut, pFile->bytes.constData() + pFile->position, static_cast<std::size_t>(count));
        pFile->position += count;
        return count;
    }
    static int seek(void* pThis, off64_t* pOffset, int)
    {
        static_cast<FailingFile*>(pThis)->position = *pOffset;
        return 0;
    }

    QByteArray bytes;
    int readsLeft;
    qsizetype position = 0;
};

RecordFileBuilder sample(bool bigEndian)
{
    RecordFileBuilder builder(bigEndian);
    builder.dateTime(kNoon).serial(0x01020304).headerTicks(0x1'0000'0002).texts(kTexts);
    builder.add(0x123, StoredRecord{{1, 2, 3, 4, 5, 6, 7, 8}, 9, 10, 0x0B0C, 0x0D0E, 0x0F10, 0x1'0000'0000});
    builder.add(0x1FFFFFFF, StoredRecord{{8, 7, 6, 5, 4, 3, 2, 1}, 0, 255, 0, 0xFFFE, 1, 0x2'1234'5678});
    builder.add(0x123, StoredRecord{{}, 0, 0, 1, 0, 0, 0x3'0000'0001});
    return builder;
}

/// Every field of the header and of every entry as one text.
QString described(const RecordInfo& info, const RecordData& data)
{
    QString text = QString("%1 %2 %3 %4 %5 %6\n").arg(info.dateTime.toString(Qt::ISODate)).arg(info.startTime, 0, 'g', 17)
                       .arg(info.endTime, 0, 'g', 17).arg(info.samples).arg(info.busType).arg(info.ecuSerialNumber);
    for (const std::string& field : {info.softwarePartA, info.ecuType, info.engineSerial, info.engineType, info.softwarePartB,
                                     info.emuSoftwareVersion})
        text += QString::fromStdString(field) + "|";
    for (const RecordChannel* pChannel : data.channels()) {
        for (const RecordEntry& entry : pChannel->entries) {
            const QByteArray payload(reinterpret_cast<const char*>(entry.payload.data()), 8);
            text += QString("\n%1 %2 %3 %4 %5 %6 ").arg(pChannel->identifier()).arg(entry.id).arg(entry.kind).arg(entry.word0).arg(entry.word1)
                        .arg(QString(payload.toHex()));
            text += QString("%1 %2 %3 %4 %5 %6").arg(entry.extra0).arg(entry.extra1).arg(entry.timeHigh).arg(entry.timeLow)
                        .arg(entry.time, 0, 'g', 17).arg(entry.timeTenths);
        }
    }
    return text;
}

} // namespace

class TestRecordFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void byteOrderHelpers();
    void bothByteOrdersReadAlike();
    void dates_data();
    void dates();
    void cutAtEveryLength();
    void times_data();
    void times();
    void spanCoversAllFilesOfOneReader();
    void progressStaysBelowHundred();
    void shrunkFileYieldsItsWholeRecords();
    void noFailedReadGoesUntold();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();
};

void TestRecordFile::byteOrderHelpers()
{
    const std::array<uint8_t, 9> counting{1, 2, 3, 4, 5, 6, 7, 8, 9};
    for (int size = -1; size <= 9; ++size) {
        auto bytes = counting;
        auto expected = counting;
        SWAP(bytes.data(), size);
        if (size > 1 && size <= 8)
            std::reverse(expected.begin(), expected.begin() + size);
        QCOMPARE(bytes, expected);
    }
    // Big-endian storage, written byte by byte, reads as its value; what is put comes back as the same bytes.
    alignas(8) const uint8_t stored[] = {0xC0, 0x49, 0x0F, 0xDB, 0x54, 0x44, 0x2D, 0x18};
    QCOMPARE(gs(reinterpret_cast<const short*>(stored)), static_cast<short>(0xC049));
    QCOMPARE(gi(reinterpret_cast<const int*>(stored)), static_cast<int>(0xC0490FDB));
    QCOMPARE(gf(reinterpret_cast<const float*>(stored)), -3.14159274F);
    QCOMPARE(gd(reinterpret_cast<const double*>(stored)), std::bit_cast<double>(uint64_t(0xC0490FDB54442D18)));
    alignas(8) uint8_t put[8];
    const auto equals = [&](std::size_t size) { return std::memcmp(put, stored, size) == 0; };
    ps(static_cast<short>(0xC049), reinterpret_cast<short*>(put));
    QVERIFY(equals(2));
    pi(static_cast<int>(0xC0490FDB), reinterpret_cast<int*>(put));
    QVERIFY(equals(4));
    pf(-3.14159274F, reinterpret_cast<float*>(put));
    QVERIFY(equals(4));
    pd(std::bit_cast<double>(uint64_t(0xC0490FDB54442D18)), reinterpret_cast<double*>(put));
    QVERIFY(equals(8));
    uint64_t host = 0;
    std::memcpy(&host, stored, 8);
    swap8(&host);
    QCOMPARE(host, uint64_t(0xC0490FDB54442D18));
}

void TestRecordFile::bothByteOrdersReadAlike()
{
    Reader little;
    Reader big;
    const QByteArray littleBytes = sample(false).bytes();
    const QByteArray bigBytes = sample(true).bytes();
    QCOMPARE(littleBytes.left(2).toHex(), QByteArray("baab"));
    QCOMPARE(bigBytes.left(2).toHex(), QByteArray("abba"));
    little.read(littleBytes).readRecordData(little.data);
    big.read(bigBytes).readRecordData(big.data);
    QCOMPARE(described(big.file, big.data), described(little.file, little.data));
    QCOMPARE(little.data.count(), 3U);
    const RecordEntry entry = little.data.channel(0x123)->entries.front();
    QCOMPARE(entry.payload, (Payload{1, 2, 3, 4, 5, 6, 7, 8}));
    QCOMPARE(entry.kind, uint16_t(0x0B0C));
    QCOMPARE(entry.word0, uint16_t(0x0D0E));
    QCOMPARE(entry.timeHigh, 1U);
    QVERIFY(!entry.flag);
    QCOMPARE(little.data.channel(0x123)->last().timeLow, 1U);
    // A damaged mark is read as the order that is not the host's.
    Reader damaged;
    damaged.read(QByteArray(bigBytes).replace(0, 2, "??")).readRecordData(damaged.data);
    QCOMPARE(described(damaged.file, damaged.data), described(little.file, little.data));
    QCOMPARE(damaged.read(QByteArray(bigBytes).replace(0, 2, "??")).problem(), QString("the header is damaged: no byte-order mark"));
}

void TestRecordFile::dates_data()
{
    QTest::addColumn<QByteArray>("fields"); // year (big-endian), month, day, hour, minute, second
    QTest::addColumn<QString>("expected");
    QTest::newRow("all zero") << QByteArray::fromHex("00000000000000") << "";
    QTest::newRow("a day") << QByteArray::fromHex("07e80c1f173b3b") << "2024-12-31T23:59:59Z";
    QTest::newRow("no leap year") << QByteArray::fromHex("07e7021d000000") << "";
    QTest::newRow("hour 24") << QByteArray::fromHex("07e80101180000") << "";
    QTest::newRow("minute 60") << QByteArray::fromHex("07e80101003c00") << "";
    QTest::newRow("second 60") << QByteArray::fromHex("07e8010100003c") << "";
    QTest::newRow("all bits set") << QByteArray::fromHex("ffffffffffffff") << "";
    QTest::newRow("a clock change") << QByteArray::fromHex("07e8031f021e00") << "2024-03-31T02:30:00Z";
}

void TestRecordFile::dates()
{
    QFETCH(QByteArray, fields);
    Reader reader;
    QTEST(reader.read(sample(true).bytes().replace(12, 7, fields)).dateTime.toString(Qt::ISODate), "expected");
}

void TestRecordFile::cutAtEveryLength()
{
    RecordFileBuilder builder = sample(false);
    const QByteArray whole = builder.bytes();
    Reader complete;
    complete.read(whole);
    for (int length = 0; length <= whole.size(); ++length) {
        Reader reader;
        const RecordFile& file = reader.read(whole.left(length));
        const unsigned records = length < 128 ? 0 : static_cast<unsigned>(length - 128) / 28;
        QCOMPARE(file.samples, records);
        QVERIFY(reader.file.readRecordData(reader.data));
        QCOMPARE(reader.data.count(), records);
        // Fields that are there whole are read, cut ones are 0 or empty.
        QCOMPARE(file.ecuSerialNumber, length >= 36 ? 0x01020304U : 0U);
        QCOMPARE(file.softwarePartA, length >= 49 ? kTexts[0] : std::string());
        QCOMPARE(file.emuSoftwareVersion, length >= 108 ? kTexts[5] : std::string());
        QCOMPARE(file.dateTime.isValid(), length >= 16); // later parts of the time of day count as 0
        if (records == 0)
            QCOMPARE(file.endTime, 0.0);
        if (length >= 28 && records == 0)
            QCOMPARE(file.startTime, recordTime(1, 2));
        Reader listed;
        const QString cut = (length - 128) % 28 != 0 ? "the last record is cut off" : "";
        QCOMPARE(listed.read(whole.left(length)).problem(), length < 128 ? QString("%1 bytes, no record").arg(length) : cut);
    }
}

void TestRecordFile::times_data()
{
    QTest::addColumn<quint64>("ticks");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<quint32>("tenths");
    QTest::newRow("zero") << quint64(0) << 0.0 << 0U;
    QTest::newRow("one second") << quint64(32000000) << 1.0 << 10U;
    QTest::newRow("rounds up") << quint64(1600000) << 0.05 << 1U;
    QTest::newRow("just below") << quint64(1599999) << 1599999 * 31.25e-9 << 0U;
    QTest::newRow("high word") << quint64(0x1'0000'0000) << 134.217728 << 1342U;
    QTest::newRow("before the carry") << quint64(0xFFFF'FFFF) << 4294967295.0 * 31.25e-9 << 1342U;
    QTest::newRow("tenths saturate") << quint64(0xFFFF'FFFF'FFFF'FFFF)
                                     << std::fma(4294967295.0, 134.217728, 4294967295.0 * 31.25e-9) << 0xFFFF'FFFFU;
}

void TestRecordFile::times()
{
    QFETCH(quint64, ticks);
    for (const bool bigEndian : {false, true}) {
        Reader reader;
        reader.read(RecordFileBuilder(bigEndian).add(7, StoredRecord{{}, 0, 0, 2, 0, 0, ticks}).bytes()).readRecordData(reader.data);
        const RecordEntry entry = reader.data.channel(7)->entries.front();
        QTEST(entry.time, "seconds");
        QTEST(entry.timeTenths, "tenths");
        QCOMPARE(reader.file.startTime, entry.time);
        QCOMPARE(reader.file.endTime, entry.time);
    }
}

void TestRecordFile::spanCoversAllFilesOfOneReader()
{
    Reader reader;
    reader.read(RecordFileBuilder().addWord(1, 20, 0).addWord(1, 5, 0).addWord(1, 10, 0).bytes());
    QCOMPARE(reader.file.startTime, 20.0); // the header pass looks at the first and the last record alone
    QCOMPARE(reader.file.endTime, 10.0);
    QCOMPARE(reader.file.problem(), QString("damaged: its records end (10 s) before they begin (20 s)"));
    reader.file.readRecordData(reader.data);
    QCOMPARE(reader.file.startTime, 5.0);
    QCOMPARE(reader.file.endTime, 20.0);
    reader.write(RecordFileBuilder(true).addWord(1, 3, 0).addWord(1, 4, 0).bytes());
    reader.file.readRecordData(reader.data);
    QCOMPARE(reader.file.startTime, 3.0);
    QCOMPARE(reader.file.endTime, 20.0);
    QCOMPARE(reader.data.count(), 5U);
}

void TestRecordFile::progressStaysBelowHundred()
{
    Reader three;
    three.read(sample(false).bytes()).readRecordData(three.data);
    QCOMPARE(three.progress.values, (std::vector<int>{0, 33, 66}));

    Reader many; // more than one piece is read
    RecordFileBuilder builder;
    const int count = 20011;
    for (int i = 0; i < count; ++i)
        builder.addWord(1, i, 0);
    many.read(builder.bytes()).readRecordData(many.data);
    std::vector<int> expected;
    for (int i = 0; i < count; ++i) {
        const int percent = static_cast<int>(static_cast<float>(i) / static_cast<float>(count) * 100.0F);
        if (expected.empty() || expected.back() != percent)
            expected.push_back(percent);
    }
    QCOMPARE(many.progress.values, expected);
}

void TestRecordFile::shrunkFileYieldsItsWholeRecords()
{
    RecordFileBuilder builder;
    const int count = 30000;
    for (int i = 0; i < count; ++i)
        builder.addWord(1, i + 1, static_cast<uint32_t>(i));
    const int left = 12345;
    Reader reader;
    const QString path = reader.write(builder.bytes());
    // The size is taken when the file is opened: the file is cut while the first report of progress is handled.
    struct Cutter : Progress {
        explicit Cutter(const QString& target, int records) : file(target), size(128 + 28 * records + 13) {}
        void setProgress(int) override { cut = cut || file.resize(size); }
        QFile file;
        int size;
        bool cut = false;
    } cutter(path, left);
    RecordFile file(reader.console, cutter);
    file.readRecordInfo(path);
    QVERIFY(file.readRecordData(reader.data));
    QVERIFY(cutter.cut);
    QCOMPARE(reader.data.count(), static_cast<uint32_t>(left));
    QCOMPARE(reader.data.channel(1)->entries.back().time, static_cast<double>(left));
    QCOMPARE(file.endTime, static_cast<double>(left));
    QVERIFY(reader.lines.find("ends after 12345 of 30000 records") != std::string::npos);
    QCOMPARE(file.problem(), QString("only 12345 of 30000 records could be read"));
    QVERIFY(file.isSystemError());
}

void TestRecordFile::noFailedReadGoesUntold()
{
    const QByteArray bytes = sample(true).bytes();
    int failing = 0;
    for (bool failed = true; failed; ++failing) {
        Reader reader;
        reader.read(bytes);
        FailingFile source{bytes, failing};
        FILE* pFile = source.open();
        const bool hasHeader = reader.file.readInfo(pFile, true);
        std::fseek(pFile, RecordFile::kHeaderSize, SEEK_SET);
        QVERIFY(!hasHeader || reader.file.readData(pFile, reader.data));
        std::fclose(pFile);
        failed = source.readsLeft < 0;
        QCOMPARE(reader.file.problem().startsWith("it cannot be read: Input/output error"), failed);
        QCOMPARE(reader.file.isSystemError(), failed);
        // Neither an invented number nor a record read in the wrong order.
        QCOMPARE(reader.file.ecuSerialNumber, hasHeader ? 0x01020304U : 0U);
        QCOMPARE(reader.data.count() == 3, !failed);
        QVERIFY(reader.data.count() == 0 || reader.data.channel(0x123));
    }
    QVERIFY(failing > 30); // each field of the header, and the records
}

void TestRecordFile::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing" << "No such file or directory";
    QTest::newRow("folder") << "folder" << "Invalid argument";
    QTest::newRow("pipe") << "pipe" << "Invalid argument"; // opening one for reading would wait for a writer
}

void TestRecordFile::whatIsNoFileIsRefused()
{
    QFETCH(QString, kind);
    Reader reader;
    const QString path = reader.folder.filePath("x%s.CAN"); // the name is text, not a format
    if (kind == "folder")
        QVERIFY(std::filesystem::create_directory(path.toStdString()));
    else if (kind == "pipe")
        QCOMPARE(mkfifo(path.toUtf8().constData(), 0600), 0);
    reader.file.samples = 17;
    reader.file.readRecordInfo(path);
    QCOMPARE(reader.lines, "RecordFile::readRecordInfo: Could not open " + path.toStdString() + "\n");
    QTEST(QString::fromStdString(reader.errors).section("Error:: ", 1).trimmed(), "reason");
    QCOMPARE(reader.file.samples, 17U); // the info stays as it was
    reader.lines.clear();
    reader.errors.clear();
    QVERIFY(reader.file.readRecordData(reader.data));
    QCOMPARE(reader.lines, "RecordFile::readRecordData: Could not open " + path.toStdString() + "\n");
    QCOMPARE(reader.errors, std::string());
    QCOMPARE(reader.data.count(), 0U);
}

QTEST_APPLESS_MAIN(TestRecordFile)
#include "TestRecordFile.moc"
