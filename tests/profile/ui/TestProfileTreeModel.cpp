#include "profile/ui/ProfileFilterModel.h"
#include "profile/ui/ProfileTreeModel.h"
#include "support/ConsoleText.h"
#include "support/ProfileBuilder.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace ZARN;
using Test::ProfileBuilder;

namespace {

/// A profile of three devices, one of them empty, with a name that stands in two, below the model and its filter.
struct Trees {
    Trees()
    {
        load();
        model.rebuild();
    }
    void load()
    {
        ProfileBuilder()
            .device("Lane")
            .parameter("Speed", 300, "FLOAT", {{"unitMetric", "rpm"}, {"unitImperial", "rpm"}})
            .parameter("Oil <b>%1 & co", 301, "FLOAT", {{"unitMetric", "bar"}, {"unitImperial", "psi"}})
            .device("Empty")
            .device("Airframe")
            .parameter("Speed", 410, "FLOAT", {{"unitMetric", "km/h"}, {"unitImperial", "kt"}})
            .parameter("Altitude", 411, "FLOAT", {{"unitMetric", "m"}, {"unitImperial", "ft"}})
            .load(profile);
    }
    [[nodiscard]] QModelIndex at(int device, int parameter, int column = 0) const
    {
        return model.index(parameter, column, model.index(device, 0));
    }

    ConsoleText console;
    Profile profile{console.console};
    ProfileTreeModel model{profile};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
    ProfileFilterModel filter{model};
    QAbstractItemModelTester filterTester{&filter, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

int box(const QModelIndex& index)
{
    return index.data(Qt::CheckStateRole).toInt();
}

/// The rows of a tree, each device before its parameters.
QStringList rows(const QAbstractItemModel& model)
{
    QStringList list;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex device = model.index(row, 0);
        list << device.data().toString();
        for (int child = 0; child < model.rowCount(device); ++child)
            list << "-" + model.index(child, 0, device).data().toString() + model.index(child, 2, device).data().toString();
    }
    return list;
}

} // namespace

class TestProfileTreeModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneNameOneFlag();
    void rebuilding();
    void filtering_data();
    void filtering();
    void deviceBoxStandsForWhatIsShown();
};

void TestProfileTreeModel::oneNameOneFlag()
{
    Trees trees;
    QSignalSpy changes(&trees.model, &QAbstractItemModel::dataChanged);
    trees.model.setData(trees.at(0, 0), Qt::Checked, Qt::CheckStateRole);
    QCOMPARE(box(trees.at(2, 0)), Qt::Checked);
    QCOMPARE(box(trees.model.index(2, 0)), Qt::PartiallyChecked);
    QCOMPARE(trees.model.selectedCount(), 2);
    const bool told = std::ranges::any_of(
        changes, [&trees](const QList<QVariant>& change) { return change[0].toModelIndex().parent() == trees.model.index(2, 0); });
    QVERIFY(told);
}

void TestProfileTreeModel::rebuilding()
{
    Trees trees;
    QSignalSpy resets(&trees.model, &QAbstractItemModel::modelReset);
    QSignalSpy spy(&trees.model, &ProfileTreeModel::signalChanged);
    trees.profile.setSelected("Altitude", true);
    trees.profile.setCurrentUnit(EUnit::eImperial);
    trees.model.rebuild();
    QCOMPARE(resets.count(), 0);
    QCOMPARE(trees.at(2, 1, ProfileTreeModel::eUnit).data().toString(), "ft");
    QCOMPARE(box(trees.at(2, 1)), Qt::Checked);
    trees.load();
    trees.model.rebuild();
    QCOMPARE(resets.count(), 1);
    QCOMPARE(box(trees.at(2, 1)), Qt::Checked);
    trees.profile.clear();
    QCOMPARE(trees.at(2, 1).data().toString(), "Altitude"); // until told, the model lives on its copies
    trees.model.rebuild();
    QCOMPARE(rows(trees.model), QStringList{});
    QCOMPARE(spy.count(), 0);
}

void TestProfileTreeModel::filtering_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("unit") << "km/h" << QStringList{"Airframe", "-Speed410"};
    QTest::newRow("identifier") << "30" << QStringList{"Lane", "-Speed300", "-Oil <b>%1 & co301"};
    QTest::newRow("no pattern") << "." << QStringList{};
    QTest::newRow("special characters") << "<B>%1 &" << QStringList{"Lane", "-Oil <b>%1 & co301"};
}

void TestProfileTreeModel::filtering()
{
    QFETCH(const QString, text);
    Trees trees;
    const QStringList all = rows(trees.filter);
    trees.filter.setFilterFixedString(text);
    QTEST(rows(trees.filter), "expected");
    trees.filter.setFilterFixedString("");
    QCOMPARE(rows(trees.filter), all);
}

void TestProfileTreeModel::deviceBoxStandsForWhatIsShown()
{
    Trees trees;
    trees.filter.setFilterFixedString("bar");
    const QModelIndex lane = trees.filter.index(0, 0);
    QVERIFY(trees.filter.setData(lane, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(box(lane), Qt::Checked);
    QVERIFY(!trees.profile.isSelected("Speed"));
    QCOMPARE(box(trees.model.index(0, 0)), Qt::PartiallyChecked);
    trees.profile.setSelected("Speed", true);
    QVERIFY(trees.filter.setData(lane, Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(trees.profile.isSelected("Speed"));
    QVERIFY(!trees.profile.isSelected("Oil <b>%1 & co"));
}

QTEST_GUILESS_MAIN(TestProfileTreeModel)
#include "TestProfileTreeModel.moc"
