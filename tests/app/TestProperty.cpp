#include "app/Property.h"
#include "support/ConsoleText.h"
#include "support/FileHelpers.h"

#include <QTemporaryDir>
#include <QtTest>

#include <clocale>
#include <cmath>
#include <limits>
#include <memory>

using ZARN::Property;

class TestProperty : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numbers_data();
    void numbers();
    void storedTexts();
    void xmlFile();
    void xmlFailures();
    void unreadFileIsPutAside();
    void unreadableIsNotWritten();
    void iniLines_data();
    void iniLines();

private:
    [[nodiscard]] std::string path(const std::string& name) const { return mFolder->path().toStdString() + "/" + name; }

    std::unique_ptr<QTemporaryDir> mFolder;
    ConsoleText mConsole;
};

void TestProperty::init()
{
    mFolder = std::make_unique<QTemporaryDir>();
    mConsole.take();
}

void TestProperty::numbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("integer");
    QTest::addColumn<double>("number");
    QTest::newRow("with unit") << "12px" << 12 << 12.0;
    QTest::newRow("no number") << "px" << 0 << 0.0;
    QTest::newRow("empty") << "" << 0 << 0.0;
    QTest::newRow("decimal comma") << "2,75" << 2 << 2.0;
    QTest::newRow("exponent") << "1e+06" << 1 << 1e6;
    QTest::newRow("leading zero is decimal") << "010" << 10 << 10.0;
    QTest::newRow("hexadecimal") << "0x10" << 0 << 16.0;
    QTest::newRow("too large") << "99999999999999999999" << std::numeric_limits<int>::max() << 1e20;
}

void TestProperty::numbers()
{
    QFETCH(QString, text);
    QFETCH(int, integer);
    QFETCH(double, number);
    Property property(mConsole.console);
    property.setString("K", text.toStdString());
    QCOMPARE(property.getInt("K", 77), integer);
    QCOMPARE(property.getDouble("K", 77.5), number);
    QCOMPARE(property.getInt("k", 77), 77);
    QCOMPARE(property.getDouble("k", 77.5), 77.5);
}

void TestProperty::storedTexts()
{
    Property property(mConsole.console);
    const auto stored = [&] { return property.getString("K", "default"); };
    QCOMPARE(stored(), std::string("default"));
    property.setString("K", "");
    QCOMPARE(stored(), std::string());
    property.setInt("K", std::numeric_limits<int>::min());
    QCOMPARE(stored(), std::string("-2147483648"));
    property.setSwitch("K", true);
    QCOMPARE(stored(), std::string("true"));
    property.setSwitch("K", false);
    QCOMPARE(stored(), std::string("false"));
    const std::pair<double, const char*> doubles[] = {{0.5, "0.5"}, {1e6, "1e+06"}, {100000.0, "100000"}, {1.0, "1"}, {1.0 / 3.0, "0.333333"},
                                                      {-0.0001, "-0.0001"}, {0.00001, "1e-05"}, {-1.5e300, "-1.5e+300"}, {-std::nan(""), "nan"},
                                                      {-std::numeric_limits<double>::infinity(), "-inf"}};
    for (const auto& [value, text] : doubles) {
        property.setDouble("K", value);
        QCOMPARE(stored(), std::string(text));
    }
}

void TestProperty::xmlFile()
{
    Property property(mConsole.console);
    property.setConfigFile(path("ZARN.ini"));
    property.setString("b", "tab\tline\n\"<&>'\xc3\xa4");
    property.setInt("a", 1);
    property.setString("B", "upper case first");
    property.setString("empty", "");
    QVERIFY(property.writeXmlFile());
    QVERIFY(property.writeXmlFile());
    const std::string text = fileContent(path("ZARN.ini"));
    QVERIFY(text.starts_with("<ZARN>\n    <Property "));
    QVERIFY(text.ends_with("/>\n</ZARN>\n"));
    QVERIFY(text.find("\"B\"") < text.find("\"a\"") && text.find("\"a\"") < text.find("\"b\""));
    QVERIFY(text.find("empty") == std::string::npos);

    Property again(mConsole.console);
    again.setConfigFile(path("ZARN.ini"));
    mConsole.take();
    QVERIFY(again.readXmlFile());
    QCOMPARE(mConsole.take(), "readXmlFile <" + path("ZARN.ini") + "> 1\n");
    QCOMPARE(again.getString("b", ""), std::string("tab\tline\n\"<&>'\xc3\xa4"));
    QCOMPARE(again.getInt("a", 0), 1);
    QCOMPARE(again.getString("empty", "default"), std::string("default"));
}

void TestProperty::xmlFailures()
{
    Property property(mConsole.console);
    property.setString("a", "old");
    QVERIFY(property.readXmlFile(path("missing")));
    QCOMPARE(mConsole.take(), "could not open file <" + path("missing") + ">\nreadXmlFile <" + path("missing") + "> 0\n");
    putFile(path("bad"), "<ZARN><Property id='a' value='new'/>");
    QVERIFY(property.readXmlFile(path("bad")));
    QCOMPARE(mConsole.take(), "could not set content <" + path("bad") + ">\nreadXmlFile <" + path("bad") + "> 0\n");
    QCOMPARE(property.getString("a", "?"), std::string("old"));
    QVERIFY(!property.writeXmlFile(path("missing/ZARN.ini")));
    QCOMPARE(mConsole.take(), "could not open file for writing !<" + path("missing/ZARN.ini") + ">\n");
}

void TestProperty::unreadFileIsPutAside()
{
    for (const std::string& content : {std::string("<ZARN><Property id='a' value='b & c'/></ZARN>"), std::string()}) {
        putFile(path("x"), content);
        Property property(mConsole.console);
        property.setConfigFile(path("x"));
        QStringList told;
        property.file().setListener([&](ZARN::UserFile::EEvent event, const QString& name) {
            told << QString::number(static_cast<int>(event)) + name.section('/', -1);
        });
        QVERIFY(property.readXmlFile());
        QVERIFY(property.isUnread());
        QVERIFY(property.writeXmlFile() && property.writeXmlFile());
        const QString name = content.empty() ? "x.damaged-2" : "x.damaged-1";
        QCOMPARE(told, (QStringList{"0" + name, "1x", "1x"}));
        QCOMPARE(fileContent(path(name.toStdString())), content);
        QVERIFY(!property.isUnread());
    }
    QCOMPARE(entryCount(path("")), 3L);
}

void TestProperty::unreadableIsNotWritten()
{
    Property property(mConsole.console);
    property.setString("a", "good");
    QVERIFY(property.writeXmlFile(path("x")));
    const std::string good = fileContent(path("x"));
    property.setString("huge", std::string(70'000, 'x'));
    QVERIFY(!property.writeXmlFile(path("x")));
    QCOMPARE(fileContent(path("x")), good);
    property.setString("huge", std::string("bell\a, zero", 11) + "\xff");
    QVERIFY(property.writeXmlFile(path("x")));
    Property again(mConsole.console);
    again.readXmlFile(path("x"));
    QCOMPARE(again.getString("huge", ""), std::string("bell, zero\xef\xbf\xbd"));
}

void TestProperty::iniLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value"); // null: no entry
    QTest::newRow("blanks and tabs") << " \tkey \t= \tvalue\t " << "key" << "value";
    QTest::newRow("quotes") << "key = \"value\"" << "key" << "value";
    QTest::newRow("blanks within quotes") << "key = \" a b \"" << "key" << "a b";
    QTest::newRow("quotes within") << "key = a\"b" << "key" << "a\"b";
    QTest::newRow("no equals") << " key word " << "key word" << "";
    QTest::newRow("section") << "[Section]" << "[Section]" << "";
    QTest::newRow("other system's line end") << "key=1\r" << "key" << "1";
    QTest::newRow("comment") << "  # key=value" << "# key" << QString();
}

void TestProperty::iniLines()
{
    QFETCH(QString, line);
    QFETCH(QString, key);
    QFETCH(QString, value);
    for (const std::string& content : {line.toStdString(), "first=1\n\n" + line.toStdString() + "\nlast=2\n"}) {
        putFile(path("x"), content);
        Property property(mConsole.console);
        QVERIFY(property.readConfigFile(path("x")));
        QCOMPARE(property.getString(key.toStdString(), "absent"), value.isNull() ? "absent" : value.toStdString());
        QCOMPARE(property.getInt("last", 2), 2);
    }
}

QTEST_GUILESS_MAIN(TestProperty)
#include "TestProperty.moc"
