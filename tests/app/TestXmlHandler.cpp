#include "app/XmlHandler.h"
#include "support/ConsoleText.h"
#include "support/FileHelpers.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

#include <cstdio>
#include <limits>

using ZARN::XmlHandler;

class TestXmlHandler : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void intAttribute_data();
    void intAttribute();
    void doubleAttribute_data();
    void doubleAttribute();
    void anyTextSurvives();
    void readFailures();

private:
    QDomNamedNodeMap attributesWith(const QString& value);

    ConsoleText mConsole;
    QDomDocument mDocument;
};

namespace {

QByteArray sampleText(const ZARN::Console& console)
{
    const XmlHandler xml(console);
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "r");
    for (int i = 0; i < 20; ++i)
        xml.xmlCreateAttribute(document, root, "name" + QString::number(i * 7919), i);
    return document.toString(4).toUtf8();
}

} // namespace

QDomNamedNodeMap TestXmlHandler::attributesWith(const QString& value)
{
    QDomElement element = mDocument.createElement("e");
    element.setAttribute("a", value);
    return element.attributes();
}

void TestXmlHandler::intAttribute_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    const std::pair<const char*, int> rows[] = {
        {"0", 0}, {"12", 12}, {"-7", -7}, {"+5", 5}, {" 12\t", 12}, {"0x10", 16}, {"0X1f", 31}, {"-0x10", -16}, {"010", 8}, {"-010", -8},
        {"09", 0}, {"0x", 0}, {"0xg", 0}, {"0b11", 0}, {"0B11", 0}, {" -0b11", 0}, {"+0b1", 0}, {"12px", 0}, {"px", 0}, {"1.0", 0}, {"1e3", 0},
        {"1,000", 0}, {"--5", 0}, {"+-5", 0}, {"- 5", 0}, {" ", 0}, {"\u0663", 0}, {"", 77},
        {"2147483647", 2147483647}, {"2147483648", 0}, {"-2147483648", std::numeric_limits<int>::min()}, {"-2147483649", 0},
        {"0x7fffffff", 2147483647}, {"0x80000000", 0}, {"99999999999999999999", 0}};
    for (const auto& [text, number] : rows)
        QTest::newRow(text) << QString::fromUtf8(text) << number;
}

void TestXmlHandler::intAttribute()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    const XmlHandler xml(mConsole.console);
    QCOMPARE(xml.xmlGetIntAttribute(attributesWith(text), "a", 77), number);
    QCOMPARE(xml.xmlGetIntAttribute(attributesWith(text), "b", 78), 78);
}

void TestXmlHandler::doubleAttribute_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    const std::pair<const char*, double> rows[] = {{"1.5", 1.5}, {" -1.5e-3 ", -1.5e-3}, {"+2", 2.0}, {".5", 0.5}, {"1,5", 0.0}, {"1.000,5", 0.0},
                                                   {"1.5m", 0.0}, {"0x10", 0.0}, {"text", 0.0}, {" ", 0.0}, {"", 7.5},
                                                   {"inf", std::numeric_limits<double>::infinity()}};
    for (const auto& [text, number] : rows)
        QTest::newRow(text) << QString(text) << number;
}

void TestXmlHandler::doubleAttribute()
{
    QFETCH(QString, text);
    QFETCH(double, number);
    const XmlHandler xml(mConsole.console);
    QCOMPARE(xml.xmlGetDoubleAttribute(attributesWith(text), "a", 7.5), number);
    QCOMPARE(xml.xmlGetDoubleAttribute(attributesWith(text), "b", 8.5), 8.5);
}

void TestXmlHandler::anyTextSurvives()
{
    const QTemporaryDir folder;
    const XmlHandler xml(mConsole.console);
    QString text;
    for (char16_t code = 1; code < 0x180; ++code)
        text += QChar(code);
    text += QStringLiteral("\u20ac\U0001f6e9\ufffe\uffff<>&\"']]>");
    QString expected = text;
    expected.removeIf([](QChar c) { return (c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c >= u'\ufffe'; });

    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "r");
    xml.xmlCreateAttribute(document, root, "a", text);
    xml.xmlCreateParameter(root, "p", text.toStdString());
    QDomElement child = xml.xmlCreateElement(document, root, "c");
    xml.xmlCreateTextElement(document, child, text);
    QVERIFY(xml.xmlWriteFile(document, folder.path(), "x.xml"));
    QDomDocument read;
    QVERIFY(xml.xmlReadFile(read, folder.path(), "x.xml"));
    QCOMPARE(read.documentElement().attribute("a"), expected);
    QCOMPARE(read.documentElement().attribute("p"), expected);
    // Line ends of text are the reader's to unify.
    QCOMPARE(read.documentElement().firstChildElement("c").text().remove('\r').remove('\n'), expected.remove('\r').remove('\n'));
    QCOMPARE(mConsole.take(), std::string());
}

void TestXmlHandler::readFailures()
{
    const QTemporaryDir folder;
    const std::string base = folder.path().toStdString();
    const XmlHandler xml(mConsole.console);
    QDomDocument document;
    xml.xmlCreateElement(document, document, "kept");
    QCOMPARE(::mkfifo((base + "/pipe").c_str(), 0600), 0);
    for (const char* name : {"missing", "", "pipe"}) {
        QVERIFY(!xml.xmlReadFile(document, folder.path(), name));
        QCOMPARE(mConsole.take(), "could not open file <" + base + "/" + name + ">\n");
    }
    // Refused by the guard, by the parser, and for its size alone.
    for (const std::string& content : {std::string("<!DOCTYPE a><a/>"), std::string("<a></b>"), std::string("<a>&nbsp;</a>"), std::string("<a/><b/>"),
                                       std::string(), "<a>" + std::string(32 * 1024 * 1024, ' ') + "</a>"}) {
        putFile(base + "/%s%n.xml", content);
        QVERIFY(!xml.xmlReadFile(document, folder.path() + "/%s%n.xml"));
        QCOMPARE(mConsole.take(), "could not set content <" + base + "/%s%n.xml>\n");
    }
    QCOMPARE(document.documentElement().tagName(), QString("kept"));
}

int main(int argc, char** argv)
{
    if (argc == 2 && std::string_view(argv[1]) == "sample") {
        const QByteArray text = sampleText(ZARN::Console::standardError());
        return std::fwrite(text.data(), 1, static_cast<std::size_t>(text.size()), stdout) > 0 ? 0 : 1;
    }
    const QCoreApplication application(argc, argv);
    TestXmlHandler test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestXmlHandler.moc"
