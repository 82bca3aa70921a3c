#include "app/Property.h"
#include "profile/ui/DialogFormulas.h"
#include "profile/ui/DialogProfile.h"
#include "project/Project.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

using namespace ZARN;

namespace {

/// The profile panel over a small profile, in a window that has the focus.
struct Panel : Test::TestCycle {
    Panel()
    {
        load();
        dialog.updateProfile();
        dialog.resize(400, 500);
        dialog.show();
        dialog.activateWindow();
        active = QTest::qWaitForWindowActive(&dialog);
    }
    void load()
    {
        Test::ProfileBuilder()
            .device("Lane")
            .parameter("Speed", 300, "FLOAT", {{"unitMetric", "rpm"}})
            .parameter("<b>Oil</b> %1 & co", 301, "FLOAT", {{"unitMetric", "bar"}})
            .device("Airframe")
            .parameter("Altitude", 411, "FLOAT", {{"unitMetric", "m"}})
            .load(profile);
    }
    [[nodiscard]] QModelIndex at(int device, int parameter = -1) const
    {
        const QModelIndex index = pTree->model()->index(device, 0);
        return parameter < 0 ? index : pTree->model()->index(parameter, 0, index);
    }
    void trigger(const QString& action, const QModelIndex& current) const
    {
        pTree->setCurrentIndex(current);
        dialog.findChild<QAction*>(action)->trigger();
    }
    [[nodiscard]] QString count() const { return dialog.findChild<QLabel*>("count")->text(); }

    Property property{console};
    Project project{console, profile};
    DialogProfile dialog{Session{console, property, profile, container, project}};
    QTreeView* pTree = dialog.findChild<QTreeView*>();
    QLineEdit* pSearch = dialog.findChild<QLineEdit*>();
    QSignalSpy changed{&dialog, &DialogProfile::signalChanged};
    bool active = false;
};

} // namespace

class TestDialogProfile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void searching();
    void onlyRecorded();
    void projectInStep();
    void limitsOfFormulas_data();
    void limitsOfFormulas();
};

void TestDialogProfile::searching()
{
    Panel panel;
    panel.pTree->expand(panel.at(1));
    panel.pSearch->setFocus();
    QTest::keyClicks(panel.pSearch, "BAR");
    QCOMPARE(panel.pTree->model()->rowCount(), 1);
    QVERIFY(panel.pTree->isExpanded(panel.at(0))); // what is found is seen
    QCOMPARE(panel.at(0, 0).data().toString(), "<b>Oil</b> %1 & co");
    panel.trigger("selectAll", panel.at(0));
    QCOMPARE(panel.count(), "1 of 3 parameters selected");
    panel.load();
    panel.dialog.updateProfile();
    QVERIFY(panel.pTree->isExpanded(panel.at(0)));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(panel.pSearch, Qt::Key_Backspace);
    QCOMPARE(panel.pTree->model()->rowCount(), 2);
    QVERIFY(!panel.pTree->isExpanded(panel.at(0)));
    QVERIFY(panel.pTree->isExpanded(panel.at(1)));
}

void TestDialogProfile::onlyRecorded()
{
    Panel panel;
    panel.trigger("selectAll", panel.at(0));
    panel.dialog.findChild<QCheckBox*>()->click();
    QCOMPARE(panel.pTree->model()->rowCount(), 2); // nothing is loaded
    panel.dialog.setRecorded(std::set<uint32_t>{301});
    QCOMPARE(panel.pTree->model()->rowCount(), 1);
    QCOMPARE(panel.pTree->model()->rowCount(panel.at(0)), 1);
    QCOMPARE(panel.count(), "3 of 3 parameters selected, 2 of them not recorded");
    panel.trigger("selectNone", panel.at(0)); // what is hidden keeps its tick
    QCOMPARE(panel.count(), "2 of 3 parameters selected, 2 of them not recorded");
    QTest::keyClicks(panel.pSearch, "Lane");
    QCOMPARE(panel.at(0, 0).data().toString(), "<b>Oil</b> %1 & co");
    panel.dialog.setRecorded(std::set<uint32_t>{411});
    QCOMPARE(panel.pTree->model()->rowCount(), 0);
}

void TestDialogProfile::projectInStep()
{
    Panel panel;
    panel.trigger("onlyDevice", panel.at(1));
    QCOMPARE(panel.project.parameterNames(), std::set<std::string>{"Altitude"});
    panel.load();
    panel.dialog.updateProject(); // another variant: what was ticked stays
    QCOMPARE(panel.count(), "1 of 3 parameters selected");
    panel.project.clear();
    panel.dialog.updateProject();
    QCOMPARE(panel.count(), "0 of 3 parameters selected");
    QVERIFY(!panel.profile.isSelected("Altitude"));
    QCOMPARE(panel.changed.count(), 1);
}

void TestDialogProfile::limitsOfFormulas_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("limit"); // 0: none is taken
    const QLocale english(QLocale::English), german(QLocale::German);
    QTest::newRow("own") << german << "1560,5" << 1560.5;
    QTest::newRow("with a point") << german << "95.5" << 95.5;
    QTest::newRow("a point as separator") << german << "0.125" << 0.0; // or was it one?
    QTest::newRow("a comma as separator") << english << "1,560" << 0.0;
    QTest::newRow("no number") << english << "95x" << 0.0;
}

void TestDialogProfile::limitsOfFormulas()
{
    QFETCH(QLocale, locale);
    QFETCH(double, limit);
    QFETCH(QString, text);
    QLocale::setDefault(locale);
    const Panel panel;
    FormulaDefinitions formulas(2);
    formulas[0].name = "a";
    formulas[0].expression = "Speed";
    formulas[1].name = formulas[1].expression = "Gone";
    DialogFormulas dialog(formulas, panel.profile.loadedModel(), {}); // the second is of another profile
    dialog.findChild<QLineEdit*>("upperLimit")->setText(text);
    dialog.findChild<QListWidget*>()->setCurrentRow(1); // and it is not forgotten
    QCOMPARE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled(), limit != 0);
    QVERIFY(limit == 0 || dialog.formulas()[0].upperLimit == limit);
    QLocale::setDefault(QLocale::c());
}

QTEST_MAIN(TestDialogProfile)
#include "TestDialogProfile.moc"
