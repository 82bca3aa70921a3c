#include "live/BusLink.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace ZARN;

Q_DECLARE_METATYPE(ZARN::EConfirming)

/// Listening to interfaces whose controllers cannot be here: what the system tells of them is given.
class TestBusLink : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsWhoConfirms_data()
    {
        QTest::addColumn<QByteArray>("links");
        QTest::addColumn<EConfirming>("expected");
        const auto link = [](const char* info) { return QByteArray(R"([{"ifname":"can0","link_type":"can","linkinfo":)") + info + "}]\n"; };
        QTest::newRow("no modes") << link(R"({"info_kind":"can","info_data":{"state":"ERROR-ACTIVE","restart_ms":0}})") << EConfirming::eAlways;
        QTest::newRow("other modes") << link(R"({"info_kind":"can","info_data":{"ctrlmode":["LOOPBACK","FD"]}})") << EConfirming::eAlways;
        QTest::newRow("listen only") << link(R"({"info_kind":"can","info_data":{"ctrlmode":["FD","LISTEN-ONLY"]}})") << EConfirming::eNever;
        QTest::newRow("no controller") << link(R"({"info_kind":"vcan"})") << EConfirming::eNever;
        QTest::newRow("serial line") << QByteArray(R"([{"ifname":"slcan0","link_type":"can"}])") << EConfirming::eUnknown;
        QTest::newRow("no such interface") << QByteArray() << EConfirming::eUnknown;
        QTest::newRow("damaged") << QByteArray(R"([{"linkinfo":{"info_kind":"can")") << EConfirming::eUnknown;
    }
    void tellsWhoConfirms()
    {
        QFETCH(QByteArray, links);
        QTEST(confirmingOf(links), "expected");
    }

    /// An interface that confirms frames is not opened while it does, and is tried as soon as it does no more; where that is not asked for,
    /// at once. There is no such interface here, so that the plugin's own error tells that it was tried.
    void opensNoneThatConfirms()
    {
        const QTemporaryDir folder;
        const QString program = folder.filePath("ip");
        const auto answer = [&program](const char* modes) {
            QFile file(program + ".new");
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray("#!/bin/sh\n[ \"$*\" = '-details -json link show dev can7' ] || exit 1\n"
                                  "echo '[{\"linkinfo\":{\"info_kind\":\"can\",\"info_data\":{\"ctrlmode\":[")
                       + modes + "]}}}]'\n");
            file.close();
            file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
            QVERIFY(std::rename(qPrintable(file.fileName()), qPrintable(program)) == 0);
        };
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(folder.path()) + ":" + path);
        QStringList reasons;
        const auto watch = [&reasons](BusLink& link) {
            connect(&link, &BusLink::stateChanged, [&reasons](BusLink::EState state, const QString& reason) {
                if (state == BusLink::eConnecting && !reason.isEmpty())
                    reasons.append(reason);
            });
            link.open();
        };
        answer("");
        BusLink careful({"socketcan", "can7"}, 0, true);
        watch(careful);
        QCOMPARE(careful.isConfirming(), EConfirming::eAlways);
        QCOMPARE(reasons.size(), 1);
        QVERIFY2(reasons.front().contains("confirms"), qPrintable(reasons.front()));
        answer("\"LISTEN-ONLY\"");
        QTRY_COMPARE(reasons.size(), 2);
        QVERIFY2(!reasons.back().contains("confirms"), qPrintable(reasons.back()));
        QCOMPARE(careful.isConfirming(), EConfirming::eNever);
        careful.close();

        answer("");
        reasons.clear();
        BusLink careless({"socketcan", "can7"});
        watch(careless);
        QTRY_COMPARE(reasons.size(), 1);
        QVERIFY2(!reasons.front().contains("confirms"), qPrintable(reasons.front()));
        QCOMPARE(careless.isConfirming(), EConfirming::eAlways);
        careless.close();
        qputenv("PATH", path);
    }
};

QTEST_GUILESS_MAIN(TestBusLink)
#include "TestBusLink.moc"
