#include "analysis/Condition.h"
#include "analysis/LimitEvents.h"
#include "project/Project.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"
#include "trace/TraceSet.h"

#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

/// a at 0, 1, 2, 3 s: 10, 20, 20, 50; b at 1, 2.5 s: 3, 5, in a unit of its own; n holds no number; u has no sample.
struct Recording {
    Recording()
    {
        ProfileBuilder builder;
        builder.unit("m", "ft", 3.0).device("D").parameter("a", 1, "FLOAT", {{"zarnDataType", "KeyOfA"}});
        builder.parameter("b (b)", 2, "FLOAT", {{"unitMetric", "m"}, {"unitImperial", "ft"}}).parameter("n", 3, "NODATA").parameter("u", 4, "FLOAT");
        builder.load(cycle.profile);
        RecordFileBuilder file;
        file.addFloat(1, 0, 10).addFloat(1, 1, 20).addFloat(2, 1, 3).addFloat(1, 2, 20).addFloat(2, 2.5, 5).addFloat(1, 3, 50);
        file.fill(data);
    }
    TestCycle cycle;
    RecordData data;
};

QString samplesOf(const RecordData& data, const DecodingContext& context, const std::string& name)
{
    QStringList samples;
    const auto pTrace = TraceSet::one(data, context, *context.model().find(name), ENumber::eDisplay);
    pTrace->forEachSample([&samples](double time, double value) { samples << QString("%1:%2").arg(time).arg(value); });
    return samples.join(' ');
}

} // namespace

/// Computed parameters against what they stand for, worked out by hand.
class TestFormula : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void computes_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("samples");
        QTest::newRow("operands are held, in metric") << "a - \"b (b)\"" << "1:17 2:17 2.5:15 3:45";
        QTest::newRow("key, constants, functions") << "max(KeyOfA, 15) * 2^1 + (t > 1 ? 1e0 : 0)" << "0:30 1:40 2:41 3:101";
        QTest::newRow("delta") << "delta(a)" << "0:nan 1:10 2:0 3:30";
        QTest::newRow("integral") << "integral ( a )" << "0:0 1:15 2:35 3:70";
        QTest::newRow("mean of the last seconds") << "avg(a, 2)" << "0:10 1:10 2:15 3:20";
        QTest::newRow("lag") << "lag(a, 1.5)" << "0:nan 1:nan 2:10 3:20";
        QTest::newRow("calls in each other") << "delta(avg(a, 1) + delta(delta(a))) - 'b (b)'" << "1:nan 2:nan 2.5:nan 3:25";
        QTest::newRow("an operand without samples") << "a + u" << "";
        QTest::newRow("no number") << "a / (a - 20)" << "0:-1 1:inf 2:inf 3:1.66667";
    }
    void computes()
    {
        QFETCH(QString, expression);
        Recording recording;
        recording.cycle.profile.setFormulas({{"f", expression.toStdString(), "x", 2, {}, {}, {}, {}}});
        QTEST(samplesOf(recording.data, recording.cycle.profile, "f"), "samples");
        recording.cycle.profile.setCurrentUnit(EUnit::eImperial);
        QTEST(samplesOf(recording.data, recording.cycle.profile, "f"), "samples");
    }

    /// The mean over a long recording against one that is summed anew for each sample; the area below it.
    void meanStaysExact()
    {
        Recording recording;
        RecordData data;
        RecordFileBuilder file;
        std::vector<double> values;
        for (int i = 0; i < 5000; ++i) {
            values.push_back(i % 1000 == 999 ? 1e9 : (i * 7919) % 101);
            file.addFloat(1, i * 0.25, static_cast<float>(values.back()));
        }
        file.fill(data);
        double area = 0;
        std::size_t at = 0;
        Formula integral("integral(a)", recording.cycle.profile.model());
        evaluate(integral, data, recording.cycle.profile, [&](uint64_t, double value) {
            area += at > 0 ? (values[at] + values[at - 1]) / 2 * 0.25 : 0.0;
            ++at;
            QVERIFY(std::abs(value - area) <= 1e-9 * std::max(1.0, area));
        });
        QCOMPARE(at, values.size());
        Formula formula("avg(a, 10)", recording.cycle.profile.model());
        std::size_t i = 0;
        evaluate(formula, data, recording.cycle.profile, [&](uint64_t, double value) {
            const std::size_t first = i < 40 ? 0 : i - 40;
            double sum = 0;
            for (std::size_t k = first; k < i; ++k)
                sum += values[k];
            const double mean = i == first ? values[i] : sum / static_cast<double>(i - first);
            QVERIFY2(std::abs(value - mean) <= 1e-6 * std::max(1.0, mean), qPrintable(QString("%1: %2, %3").arg(i).arg(value).arg(mean)));
            ++i;
        });
        QCOMPARE(i, values.size());
    }

    void tellsWhere_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<int>("place");
        for (const auto& [expression, place] : std::initializer_list<std::pair<const char*, int>>{
                 {"a + c", 4}, {"a + \"c\"", 4}, {"a = 2", 2}, {"(a", 2}, {"a + ", 4}, {"a, a", 0}, {"2 + 3", 0}, {"n", 0}, {"avg(a)", 0},
                 {"avg(a, 3601)", 6}, {"avg(a, a)", 6}, {"1 + delta(a, 2)", 4}, {"a\xC2\xB0", 1}, {"a + \"b", 4}, {"g + 1", 0}, {"f", 0}, {"sin(a, a)", 8}, {"delta(", 5}})
            QTest::newRow(expression) << QString(expression) << place;
        QTest::newRow("long") << QString(3000, '-') + "a" << 2000;
        QTest::newRow("deep") << QString("delta(").repeated(20) + "a" + QString(")").repeated(20) << 96 + 6;
    }
    void tellsWhere()
    {
        QFETCH(QString, expression);
        Recording recording;
        recording.cycle.profile.setFormulas({{"f", "f", "", 2, {}, {}, {}, {}}, {"g", "f", "", 2, {}, {}, {}, {}}});
        try {
            const Formula formula(expression.toStdString(), recording.cycle.profile.model(), "f");
            QFAIL("accepted");
        } catch (const FormulaError& error) {
            QTEST(static_cast<int>(error.place()), "place");
        }
    }

    /// Limits of its own, formulas over formulas, names that are taken.
    void isAParameterAsAnyOther()
    {
        Recording recording;
        recording.cycle.profile.setFormulas({{"f", "a * 2", "x", 1, {}, 30.0, 60.0, 90.0}, {"g", "f + 1", "", 0, {}, {}, {}, {}}, {"a", "f", "", 0, {}, {}, {}, {}}});
        const DecodingContext& context = recording.cycle.profile;
        QCOMPARE(context.model().devices.back().parameters.size(), 2U);
        QCOMPARE(samplesOf(recording.data, context, "g"), "0:21 1:41 2:41 3:101");
        QStringList states;
        for (const double value : {29.0, 30.0, 30.5, 60.0, 90.0})
            states << QString::number(context.decoder(*context.model().find("f")).threshold(value).state);
        QCOMPARE(states.join(' '), "1 1 0 1 2");
        QCOMPARE(limitEvents(recording.data, context).events().size(), 1U); // at 3 s
        QCOMPARE(CycleValues(recording.data, context, 3).displayAt(*context.model().find("f"), 2.5)->text, "40.0");
    }

    void conditions()
    {
        Recording recording;
        const auto times = [&](const char* condition, double atLeast, std::optional<TimeSpan> within = {}) {
            QStringList texts;
            for (const TimeSpan& span : timesWhere(condition, atLeast, recording.data, recording.cycle.profile, within).spans)
                texts << QString("%1-%2").arg(span.start).arg(span.end);
            return texts.join(' ');
        };
        QCOMPARE(times("a < 15 || a > 30", 0), "0-1 3-3");
        QCOMPARE(times("a < 15 || a > 30", 0.5), "0-1");
        QCOMPARE(times("\"b (b)\" < 4 && a > 15", 1, TimeSpan{1.25, 9}), "1.25-2.5");
        QCOMPARE(times("1 / (a - 20) > 0", 0), "1-3"); // infinite is above everything, and ends as everything else
        recording.cycle.profile.setFormulas({{"no", "log(-a)", "", 2, {}, {}, {}, {}}});
        const ConditionTimes never = timesWhere("no > a", 0, recording.data, recording.cycle.profile);
        QVERIFY(never.spans.empty() && never.withoutNumber == std::vector<std::string>{"no"} && never.operands.size() == 2);
        QCOMPARE(timesWhere("(u > a) == 0", 0, recording.data, recording.cycle.profile).unrecorded, std::vector<std::string>{"u"});
    }

    void isKeptInTheProject()
    {
        const FormulaDefinitions formulas{{"f \"<", "a > 1 & b", "°C", 4, -1.5, {}, 0.1, 1e300}, {"g", "1", "", 2, {}, 3.0, {}, {}}};
        Recording first, second;
        const QTemporaryDir folder;
        Project project(first.cycle.console, first.cycle.profile);
        first.cycle.profile.setFormulas(formulas);
        QVERIFY(project.saveProject(folder.filePath("p.xml")));
        Project other(second.cycle.console, second.cycle.profile);
        QVERIFY(other.readProject(folder.filePath("p.xml")));
        QVERIFY(second.cycle.profile.formulas() == formulas);
    }
};

QTEST_GUILESS_MAIN(TestFormula)
#include "TestFormula.moc"
