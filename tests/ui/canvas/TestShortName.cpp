#include "ui/canvas/ShortName.h"

#include <QtTest>

using namespace ZARN;

class TestShortName : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatTellsNamesApart()
    {
        const QString names[] = {"Manifold Pressure Lane A", "Manifold Pressure Lane B", "Manifold Temperature Lane A", "Oil Pressure [bar]",
                                 "Exhaust Gas Temperature 1 [°C]"};
        for (int length = 12; length < 32; ++length) {
            QStringList seen;
            for (const QString& name : names) {
                const QString text = shortName(name, length);
                QVERIFY2(text.size() <= length, qPrintable(text));
                QVERIFY2(!seen.contains(text), qPrintable(text));
                QCOMPARE(text == name, name.size() <= length);
                if (length > 15)
                    QCOMPARE(text.section(' ', -1), name.section(' ', -1)); // lane, number or unit
                seen << text;
            }
        }
    }
    void cutsWhatHasNoRoom()
    {
        QCOMPARE(shortName("Engine Speed A", 4), QString("Eng\u2026"));
        QCOMPARE(shortName("Engine", 0), QString("\u2026"));
        QCOMPARE(shortName({}, 0), QString());
        QCOMPARE(shortName(QString(1'000'000, 'x'), 4).size(), 4); // at once
        QCOMPARE(shortName("a  b", [](const QString&) { return false; }), QString());
        QCOMPARE(cutText("12345", 5), QString("12345"));
        QCOMPARE(cutText("123456", 5), QString("1234\u2026"));
    }
};

QTEST_GUILESS_MAIN(TestShortName)
#include "TestShortName.moc"
