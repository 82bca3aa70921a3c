#include "support/FullDisk.h"
#include "sim/RecordWriter.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;

class TestRecordWriter : public QObject {
    Q_OBJECT

private:
    static CardHeader header()
    {
        CardHeader header;
        header.dateTime = QDateTime(QDate(2024, 6, 15), QTime(8, 7, 9), Qt::UTC);
        header.ticks = 0x0000000112345678;
        header.busType = 3;
        header.ecuSerialNumber = 0x01020304;
        header.softwarePartA = "A";
        header.ecuType = "exactly 13 by";
        header.engineSerial = "longer than thirteen";
        header.engineType = "";
        header.softwarePartB = "B";
        header.emuSoftwareVersion = "1.2";
        return header;
    }

    static CardRecord record()
    {
        CardRecord record;
        record.payload = {1, 2, 3, 4, 5, 6, 7, 8};
        record.length = 9;
        record.bus = 10;
        record.kind = 0x0B0C;
        record.id = 0x0D0E0F10;
        record.sequence = 0x1112;
        record.load = 0x1314;
        record.ticks = 0x15161718191A1B1C;
        return record;
    }

    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

private Q_SLOTS:
    void layout_data()
    {
        QTest::addColumn<bool>("bigEndian");
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<QByteArray>("record");
        QTest::newRow("little-endian") << false << QByteArray::fromHex("baab00000000000000000000e807060f08070900010000007856341203000000") +
                                                       QByteArray::fromHex("04030201")
                                       << QByteArray::fromHex("0102030405060708090a0c0b100f0e0d12111413181716151c1b1a19");
        QTest::newRow("big-endian") << true << QByteArray::fromHex("abba0000000000000000000007e8060f08070900000000011234567800000003") +
                                                   QByteArray::fromHex("01020304")
                                    << QByteArray::fromHex("0102030405060708090a0b0c0d0e0f101112131415161718191a1b1c");
    }

    void layout()
    {
        QFETCH(bool, bigEndian);
        QFETCH(QByteArray, start);
        QTemporaryDir folder;
        RecordWriter writer(bigEndian);
        QVERIFY(writer.open(folder.filePath("x.CAN").toStdString(), header()));
        QVERIFY(writer.append({record(), record()}));
        QVERIFY(writer.close());
        const QByteArray bytes = content(folder.filePath("x.CAN"));
        QCOMPARE(bytes.size(), 128 + 2 * 28);
        QCOMPARE(bytes.left(36).toHex(), start.toHex());
        QByteArray texts = QByteArray("A").leftJustified(13, '\0') + "exactly 13 by" + "longer than t" + QByteArray(13, '\0') +
                           QByteArray("B").leftJustified(13, '\0') + QByteArray("1.2").leftJustified(7, '\0') + QByteArray(20, '\0');
        QCOMPARE(bytes.mid(36, 92).toHex(), texts.toHex());
        QTEST(bytes.mid(128, 28), "record");
        QCOMPARE(bytes.mid(156, 28), bytes.mid(128, 28));
    }

    void anInvalidDateIsWrittenAsZeros()
    {
        QTemporaryDir folder;
        CardHeader undated = header();
        undated.dateTime = QDateTime();
        RecordWriter writer(false);
        QVERIFY(writer.open(folder.filePath("x.CAN").toStdString(), undated) && writer.close());
        QCOMPARE(content(folder.filePath("x.CAN")).mid(12, 8), QByteArray(8, '\0'));
    }

    void anExistingFileIsLeftAlone()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("x.CAN");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("a recording") == 11);
        file.close();
        RecordWriter writer(false);
        QVERIFY(!writer.open(path.toStdString(), header()));
        QCOMPARE(writer.error(), path.toStdString() + ": File exists");
        QCOMPARE(content(path), QByteArray("a recording"));
    }

    /// The failure may come while records are appended or, with few of them, only when the file is closed.
    void aFullDisk_data()
    {
        QTest::addColumn<int>("records");
        QTest::newRow("while appending") << 40000;
        QTest::newRow("when closing") << 100;
    }

    void aFullDisk()
    {
        QFETCH(int, records);
        QTemporaryDir folder;
        const QString good = folder.filePath("1.CAN");
        const QString bad = folder.filePath("2.CAN");
        RecordWriter writer(false);
        QVERIFY(writer.open(good.toStdString(), header()) && writer.append({record()}) && writer.close());
        const FullDisk limit(2000);
        QVERIFY(writer.open(bad.toStdString(), header()));
        const bool appended = writer.append(std::vector<CardRecord>(static_cast<std::size_t>(records), record()));
        QVERIFY(!(appended && writer.close()));
        QCOMPARE(writer.error(), bad.toStdString() + ": File too large");
        QVERIFY(!QFile::exists(bad));
        QCOMPARE(QFile(good).size(), 156);
    }

    void anUnfinishedFileIsRemoved()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("x.CAN");
        {
            RecordWriter writer(false);
            QVERIFY(writer.open(path.toStdString(), header()) && writer.append({record()}));
            QVERIFY(QFile::exists(path));
        }
        QVERIFY(!QFile::exists(path));
    }
};

QTEST_GUILESS_MAIN(TestRecordWriter)
#include "test_record_writer.moc"
