#include "support/Places.h"

#include <QDomDocument>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QTest>

/// Checks the profile that the program ships against the rules that its readers rely on, for each variant as for none.
class TestShippedProfile : public QObject {
    Q_OBJECT

private:
    QDomElement mRoot;
    QDomDocument mDocument;

    static bool applies(const QDomElement& element, const QString& variant)
    {
        const QString attribute = element.attribute("variant");
        if (attribute.isEmpty() || variant.isEmpty())
            return true;
        QSet<QString> included;
        QSet<QString> excluded;
        for (const QString& item : attribute.split(',')) {
            const QString name = item.trimmed();
            if (name.startsWith('!'))
                excluded.insert(name.mid(1));
            else
                included.insert(name);
        }
        return !excluded.contains(variant) && (included.isEmpty() || included.contains(variant));
    }

    static QList<QDomElement> children(const QDomElement& parent, const QString& tag, const QString& variant)
    {
        QList<QDomElement> found;
        for (QDomElement e = parent.firstChildElement(tag); !e.isNull(); e = e.nextSiblingElement(tag))
            if (applies(e, variant))
                found << e;
        return found;
    }

    QList<QDomElement> grandChildren(const QString& parent, const QString& tag, const QString& variant) const
    {
        QList<QDomElement> found;
        for (const QDomElement& e : children(mRoot, parent, variant))
            found << children(e, tag, variant);
        return found;
    }

    QStringList variantNames() const
    {
        QStringList names{""};
        for (const QDomElement& variant : grandChildren("Variants", "Variant", ""))
            names << variant.attribute("name");
        return names;
    }

    void addVariantRows() const
    {
        QTest::addColumn<QString>("variant");
        for (const QString& name : variantNames())
            QTest::addRow("%s", name.isEmpty() ? "no variant" : qPrintable(name)) << name;
    }

    static QString whereIs(const QDomElement& element) { return QString("%1, line %2").arg(element.attribute("name")).arg(element.lineNumber()); }

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(ZARN::sourceDir() + "/resources/profiles/915/Profile.xml");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString reason;
        QVERIFY2(mDocument.setContent(&file, false, &reason), qPrintable(reason));
        mRoot = mDocument.documentElement();
        QCOMPARE(mRoot.tagName(), QString("CanAerospaceProfile"));
        QCOMPARE(variantNames().size(), 4);
    }

    void variantsAreNamedAsDeclared()
    {
        const QStringList names = variantNames();
        int used = 0;
        for (const QDomElement& e : grandChildren("Device", "Parameter", "") + grandChildren("ThresholdList", "Threshold", "")) {
            for (QString item : e.attribute("variant").split(',', Qt::SkipEmptyParts)) {
                item = item.trimmed();
                QVERIFY2(names.contains(item.startsWith('!') ? item.mid(1) : item), qPrintable(item));
                ++used;
            }
        }
        QVERIFY(used > 5);
    }

    void listsStandBeforeDevices()
    {
        bool deviceSeen = false;
        for (QDomElement e = mRoot.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            deviceSeen = deviceSeen || e.tagName() == "Device";
            QVERIFY2(!deviceSeen || e.tagName() == "Device", qPrintable(e.tagName()));
        }
        QVERIFY(deviceSeen);
    }

    void parametersResolve_data() { addVariantRows(); }
    void parametersResolve()
    {
        QFETCH(QString, variant);
        QSet<QString> units;
        for (const QDomElement& unit : grandChildren("UnitConversions", "Unit", variant)) {
            QVERIFY2(unit.attribute("factor").toDouble() != 0, qPrintable(unit.attribute("unitMetric")));
            units.insert(unit.attribute("unitMetric") + "_" + unit.attribute("unitImperial"));
        }
        QSet<QString> enums;
        for (const QDomElement& list : grandChildren("EnumList", "Enum", variant))
            enums.insert(list.attribute("name"));
        QSet<QString> thresholds;
        for (const QDomElement& list : grandChildren("ThresholdList", "Threshold", variant))
            thresholds.insert(list.attribute("name"));
        const QSet<QString> types{"FLOAT", "LONG", "ULONG", "BLONG", "SHORT", "USHORT", "BSHORT", "CHAR", "UCHAR"};
        const QList<QDomElement> parameters = grandChildren("Device", "Parameter", variant);
        QVERIFY(parameters.size() >= 120 + 64);
        for (const QDomElement& p : parameters) {
            const QByteArray where = whereIs(p).toUtf8();
            QVERIFY2(units.contains(p.attribute("unitMetric") + "_" + p.attribute("unitImperial")), where);
            QVERIFY2(!p.hasAttribute("enumId") || enums.contains(p.attribute("enumId")), where);
            QVERIFY2(!p.hasAttribute("thresholdId") || thresholds.contains(p.attribute("thresholdId")), where);
            QVERIFY2(types.contains(p.attribute("dataType")), where);
            QCOMPARE(p.attribute("startByte"), QString("4"));
            // Words of bits show their labels only with an enumeration and the bits named.
            QVERIFY2(!p.attribute("dataType").startsWith('B') || (p.hasAttribute("enumId") && p.hasAttribute("endBit")), where);
        }
    }

    void thresholdsAscend_data() { addVariantRows(); }
    void thresholdsAscend()
    {
        QFETCH(QString, variant);
        const QMap<QString, QString> colours{{"OK", "#009E73"}, {"WARNING", "#E69F00"}, {"LIMIT", "#D55E00"}};
        bool lowLimit = false;
        bool highLimit = false;
        for (const QDomElement& list : grandChildren("ThresholdList", "Threshold", variant)) {
            const QList<QDomElement> values = children(list, "Value", variant);
            QVERIFY(values.size() >= 2);
            for (qsizetype i = 0; i < values.size(); ++i) {
                QCOMPARE(values[i].attribute("color"), colours.value(values[i].attribute("state")));
                QVERIFY2(i == 0 || values[i].attribute("val").toDouble() > values[i - 1].attribute("val").toDouble(), qPrintable(whereIs(list)));
            }
            lowLimit = lowLimit || values.first().attribute("state") == "LIMIT";
            highLimit = highLimit || values.last().attribute("state") == "LIMIT";
        }
        QVERIFY(lowLimit && highLimit);
    }

    void namesAndIdentifiersAreDistinct_data() { addVariantRows(); }
    void namesAndIdentifiersAreDistinct()
    {
        QFETCH(QString, variant);
        QSet<QString> matrices;
        for (const QDomElement& matrix : grandChildren("Device", "ErrorMatrix", variant))
            matrices.insert(matrix.attribute("id"));
        QSet<QString> ids = matrices;
        QSet<QString> names;
        QMap<QString, int> keys;
        for (const QDomElement& p : grandChildren("Device", "Parameter", variant)) {
            const QString id = p.attribute("id");
            bool decimal = false;
            QVERIFY2(id.toUInt(&decimal, 10) < (1U << 29) && decimal && !id.startsWith('0'), qPrintable(whereIs(p)));
            QVERIFY2(matrices.contains(id) || !ids.contains(id), qPrintable(whereIs(p)));
            QVERIFY2(!names.contains(p.attribute("name")), qPrintable(whereIs(p)));
            ids.insert(id);
            names.insert(p.attribute("name"));
            ++keys[p.attribute("zarnDataType")];
        }
        for (const char* key : {"GroundSpeed", "ThrottleA", "FuelA", "FuelB", "Altitude", "Latitude", "Longitude", "Track"})
            QCOMPARE(keys.value(key), 1);
        keys.remove("");
        for (auto key = keys.cbegin(); key != keys.cend(); ++key)
            QVERIFY2(key.value() == 1, qPrintable(key.key()));
    }

    void errorMatricesHaveAllBits()
    {
        int matrices = 0;
        for (const QDomElement& device : children(mRoot, "Device", "")) {
            const QDomElement matrix = device.firstChildElement("ErrorMatrix");
            if (matrix.isNull())
                continue;
            ++matrices;
            QVERIFY(matrix.previousSiblingElement("Parameter").isNull());
            QSet<int> bits;
            QSet<QString> kinds;
            for (const QDomElement& p : children(device, "Parameter", "")) {
                QCOMPARE(p.attribute("id"), matrix.attribute("id"));
                QCOMPARE(p.attribute("startBit"), p.attribute("endBit"));
                QCOMPARE(p.attribute("dataType"), QString("BLONG"));
                bits.insert(p.attribute("startBit").toInt());
                kinds.insert(p.attribute("errorType"));
            }
            QCOMPARE(bits.size(), 32);
            QCOMPARE(kinds, QSet<QString>({"Info", "Warning", "Fault"}));
        }
        QCOMPARE(matrices, 2);
    }
};

QTEST_GUILESS_MAIN(TestShippedProfile)
#include "test_shipped_profile.moc"
