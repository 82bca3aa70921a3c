#include "app/RegularFile.h"
#include "app/XmlGuard.h"
#include "support/FileHelpers.h"

#include <QDomDocument>
#include <QElapsedTimer>
#include <QStringConverter>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using ZARN::XmlGuard;

class TestXmlGuard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void encodings_data();
    void encodings();
    void isLinear_data();
    void isLinear();
    void opensRegularFilesOnly();
};

namespace {

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

/// A document whose only tag has this many bytes.
QByteArray tagOf(int size)
{
    return "<a b='" + QByteArray(size - 9, 'x') + "'/>";
}

QByteArray encoded(const QString& text, QStringConverter::Encoding encoding, bool mark)
{
    QStringEncoder encoder(encoding, mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

void TestXmlGuard::texts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("passes");
    QTest::newRow("plain") << QByteArray("<?xml version=\"1.0\"?>\n<a><b c=\"d\"/>text<e></e></a>\n") << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no element") << QByteArray("<!-- a -->") << false;

    QTest::newRow("depth at the limit") << nested(64) << true;
    QTest::newRow("depth above") << nested(65) << false;
    QTest::newRow("empty element above") << nested(64).insert(64 * 3, "<b/>") << false;
    QTest::newRow("depth after quoted slash") << QByteArray("<a b='/'>").repeated(65) + QByteArray("</a>").repeated(65) << false;
    QTest::newRow("tag above") << tagOf(65537) << false;
    QTest::newRow("end tag above") << "<a></a" + QByteArray(65536, ' ') + ">" << false;
    QTest::newRow("attributes at the limit") << "<a" + QByteArray(" b=''").repeated(1000) + "/>" << true;
    QTest::newRow("attributes above") << "<a" + QByteArray(" b=''").repeated(1001) + "/>" << false;
    // Everything that the document keeps counts, in sum.
    for (const auto& [piece, nodes] : {std::pair("<b/>", 1), {"<!---->", 1}, {"<?p?>", 1}, {"<![CDATA[]]>", 1}, {"x<!---->", 2}, {"<b a=''/>", 3}}) {
        const int most = (64 * 1024 * 4 - 1) / nodes; // beside the root; an attribute counts twice
        QTest::addRow("%s at the limit", piece) << "<a>" + QByteArray(piece).repeated(most) + "</a>" << true;
        QTest::addRow("%s above", piece) << "<a>" + QByteArray(piece).repeated(most + 1) + "</a>" << false;
    }
    QTest::newRow("long text, comment and section") << "<a><!--" + QByteArray(200000, '<') + "--><![CDATA[" + QByteArray(200000, '<') + "]]>"
                                                          + QByteArray(200000, '>') + "</a>"
                                                    << true;

    QTest::newRow("document type") << QByteArray("<!DOCTYPE a><a/>") << false;
    QTest::newRow("entity bomb") << QByteArray("<!DOCTYPE a [<!ENTITY b 'x'><!ENTITY c '&b;&b;&b;&b;'>]><a>&c;</a>") << false;
    QTest::newRow("document type after a comment") << QByteArray("<!-- > --><!DOCTYPE a><a/>") << false;
    QTest::newRow("document type after an odd comment") << QByteArray("<!--><!DOCTYPE a>--><a/>") << true; // all comment
    QTest::newRow("document type in a section") << QByteArray("<a><![CDATA[<!DOCTYPE a>]]></a>") << true;
    QTest::newRow("document type in a value") << QByteArray("<a b='<!DOCTYPE a>'/>") << true;
    QTest::newRow("section in small letters") << QByteArray("<a><![cdata[x]]></a>") << false;

    QTest::newRow("other quote and > in a value") << QByteArray("<a b='\">' c=\"'>\"></a>") << true;

    QTest::newRow("unterminated tag") << QByteArray("<a") << false;
    QTest::newRow("unterminated comment") << QByteArray("<a/><!-- x ->") << false;
    QTest::newRow("unterminated element") << QByteArray("<a><b></b>") << false;
    QTest::newRow("end tag too many") << QByteArray("<a></a></a><b>") << false;
    QTest::newRow("zero character") << QByteArray("<a>\0</a>", 8) << false;
}

void TestXmlGuard::texts()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, passes);
    QCOMPARE(XmlGuard::accepts(viewOf(text)), passes);
    QCOMPARE(XmlGuard::pass(viewOf(text)).has_value(), passes);
}

void TestXmlGuard::encodings_data()
{
    using Code = QStringConverter;
    const QString plain = QStringLiteral("<a b='\u00e4\U0001f6e9'/>");
    const QString latin = QStringLiteral("<?xml version='1.0' encoding='ISO-8859-1'?><a b='\u00e4'/>");
    const QString bomb = QStringLiteral("<!DOCTYPE a [<!ENTITY b 'x'>]><a>&b;</a>");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("value"); // of the attribute "b"; null when the file is refused
    QTest::newRow("UTF-8") << plain.toUtf8() << "\u00e4\U0001f6e9";
    QTest::newRow("UTF-8 with mark") << encoded(plain, Code::Utf8, true) << "\u00e4\U0001f6e9";
    for (const auto& [name, code] : {std::pair("UTF-16LE", Code::Utf16LE), {"UTF-16BE", Code::Utf16BE}, {"UTF-32LE", Code::Utf32LE},
                                     {"UTF-32BE", Code::Utf32BE}}) {
        QTest::addRow("%s with mark", name) << encoded(plain, code, true) << "\u00e4\U0001f6e9";
        QTest::addRow("%s without", name) << encoded(plain, code, false) << "\u00e4\U0001f6e9";
        QTest::addRow("%s declared", name) << encoded("<?xml version='1.0' encoding='UTF-16'?>" + plain, code, true) << "\u00e4\U0001f6e9";
        QTest::addRow("bomb in %s", name) << encoded(bomb, code, true) << QString();
        QTest::addRow("bomb in %s without mark", name) << encoded(bomb, code, false) << QString();
        QTest::addRow("bomb in %s after a blank", name) << encoded(" " + bomb, code, false) << QString();
        QTest::addRow("depth in %s", name) << encoded(QString::fromLatin1(nested(65)), code, true) << QString();
    }
    QTest::newRow("Latin-1") << latin.toLatin1() << "\u00e4";
    QTest::newRow("Windows") << QByteArray("<?xml version='1.0' encoding='windows-1252'?><a b='\x80'/>") << "\u20ac";
    QTest::newRow("Latin-1 bytes as UTF-8") << QByteArray("<a b='\xe4'/>") << QString();
    QTest::newRow("declared UTF-8") << QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?><a b='\xc3\xa4'/>") << "\u00e4";
    QTest::newRow("declared what it is not") << QByteArray("<?xml version='1.0' encoding='UTF-16'?><a b=''/>") << QString();
    QTest::newRow("seven bits") << QByteArray("<?xml version='1.0' encoding='UTF-7'?>+ADwAIQ-DOCTYPE a+AD4-<a b=''/>") << QString();
    QTest::newRow("unknown encoding") << QByteArray("<?xml version='1.0' encoding='EBCDIC-US'?><a b=''/>") << QString();
    QTest::newRow("cut character") << QByteArray("<a b=''/>\n\xc3") << QString();
    QTest::newRow("overlong <") << QByteArray("<a b=''>\xc0\xbc!DOCTYPE></a>") << QString();
}

void TestXmlGuard::encodings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, value);
    const auto text = XmlGuard::pass(viewOf(bytes));
    QCOMPARE(text.has_value(), !value.isNull());
    if (!text)
        return;
    QDomDocument document;
    QVERIFY(document.setContent(*text));
    QCOMPARE(document.documentElement().attribute("b"), value);
}

void TestXmlGuard::isLinear_data()
{
    QTest::addColumn<QByteArray>("piece");
    for (const char* piece : {"<", "<!--", "<![CDATA[", "<?", "<a '", "'", "<a b=\"'\"", "-", "]", "<a>", "</", "&a;", "<a/>"})
        QTest::newRow(piece) << QByteArray(piece);
}

void TestXmlGuard::isLinear()
{
    QFETCH(QByteArray, piece);
    const QByteArray start = "<r>" + piece.repeated(30 * 1024 * 1024 / static_cast<int>(piece.size()));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!XmlGuard::accepts(viewOf(start)));
    QVERIFY2(timer.elapsed() < 10000, "a pass over 30 MiB takes milliseconds, not minutes");
}

void TestXmlGuard::opensRegularFilesOnly()
{
    const QTemporaryDir folder;
    const std::string base = folder.path().toStdString();
    putFile(base + "/file", "12345");
    QCOMPARE(::mkfifo((base + "/pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("file", base + "/link");
    std::filesystem::create_symlink("pipe", base + "/link to pipe");
    QCOMPARE(ZARN::readRegularFile(base + "/file", 5), std::optional<std::string>("12345"));
    QCOMPARE(ZARN::readRegularFile(base + "/file", 3), std::optional<std::string>("1234"));
    QCOMPARE(ZARN::readRegularFile(base + "/link", 9), std::optional<std::string>("12345"));
    for (const std::string name : {"", "/", "/pipe", "/link to pipe", "/missing", "/file/x"})
        QVERIFY2(!ZARN::readRegularFile(base + name, 10), name.c_str());
    QVERIFY(!ZARN::readRegularFile("/dev/zero", 10));
    QVERIFY(!ZARN::readRegularFile({}, 10));
    QVERIFY(!ZARN::readRegularFile(base + "/file" + std::string(1, '\0') + "x", 10));
}

QTEST_GUILESS_MAIN(TestXmlGuard)
#include "TestXmlGuard.moc"
