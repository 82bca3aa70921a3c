#include "app/StyleHandler.h"
#include "support/FileHelpers.h"

#include <QTemporaryDir>
#include <QtTest>

/// Reading of style sheets: comments, variables, and what the loader leaves alone.
class TestStyleHandler : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sheet_data();
    void sheet();
    void parameters();
    void readAgain();

private:
    QString path(const QString& name) const { return mFolder.filePath(name); }
    QString read(StyleHandler& handler, const QByteArray& text)
    {
        putFile(path("style.css").toStdString(), text.toStdString());
        return handler.readStyle(path("style.css"));
    }

    QTemporaryDir mFolder;
};

void TestStyleHandler::sheet_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("variable") << QByteArray("Variables { radius: 5; }\nA { b: $(radius)px; }")
                              << "Variables { radius: 5; }\nA { b: 5px; }";
    QTest::newRow("variables last") << QByteArray("A { b: $(x); }\nVariables { x: 1; }") << "A { b: 1; }\nVariables { x: 1; }";
    QTest::newRow("unknown") << QByteArray("Variables { a: 1; } B { c: $(A); }") << "Variables { a: 1; } B { c: $(A); }";
    QTest::newRow("colons kept") << QByteArray("Variables { g: qlg(x1:0, stop:0 red); } B { c: $(g); }")
                                 << "Variables { g: qlg(x1:0, stop:0 red); } B { c: qlg(x1:0, stop:0 red); }";
    QTest::newRow("no semicolon") << QByteArray("Variables { a: 1; b: 2 } C { d: $(a) $(b); }")
                                  << "Variables { a: 1; b: 2 } C { d: 1 $(b); }";
    QTest::newRow("chain") << QByteArray("Variables { a: $(b); b: 3; } C { d: $(a); }") << "Variables { a: 3; b: 3; } C { d: 3; }";
    QTest::newRow("block comment") << QByteArray("A /* b\n** } */{ c: 1; }") << "A { c: 1; }";
    QTest::newRow("commented variable") << QByteArray("Variables { /* a: 1; */ a: 2; } B { c: $(a); }") << "Variables {  a: 2; } B { c: 2; }";
}

void TestStyleHandler::sheet()
{
    QFETCH(QByteArray, text);
    StyleHandler handler;
    QTEST(read(handler, text), "wanted");
    QTEST(handler.styleSheet(), "wanted");
}

void TestStyleHandler::parameters()
{
    StyleHandler handler;
    read(handler, "Variables { a : 55, 170, 255 ; b:; a2: x:y; }");
    QCOMPARE(handler.getParameter("a"), QString("55, 170, 255"));
    QCOMPARE(handler.getParameter("a2"), QString("x:y"));
    QCOMPARE(handler.getParameter("b"), QString());
    QCOMPARE(handler.getParameter("c"), QString());
}

void TestStyleHandler::readAgain()
{
    StyleHandler handler;
    read(handler, "Variables { a: 1; }");
    QCOMPARE(read(handler, "B { c: $(a); }"), QString("B { c: $(a); }")); // a variable that was taken out is gone
}

QTEST_GUILESS_MAIN(TestStyleHandler)
#include "TestStyleHandler.moc"
