#include "app/Console.h"
#include "profile/Profile.h"
#include "profile/ProfileCheck.h"
#include "project/LayoutStore.h"
#include "support/Places.h"

#include <QFileInfo>
#include <QTest>

using namespace ZARN;

/// The profile that the program ships: nothing that the check finds, and what the program itself needs of it.
class TestShippedProfile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasNoProblem();
    void hasWhatTheProgramNeeds();

private:
    const QString mFile = sourceDir() + "/resources/profiles/915/Profile.xml";
};

void TestShippedProfile::hasNoProblem()
{
    for (const ProfileProblem& problem : ProfileCheck::problems(mFile))
        QFAIL(qPrintable(ProfileCheck::text(problem)));
}

void TestShippedProfile::hasWhatTheProgramNeeds()
{
    const Console silent([](std::string_view) {}, [](std::string_view) {});
    Profile profile(silent);
    QCOMPARE(profile.loadVariants(mFile).size(), std::size_t(3));
    std::vector<std::string> variants{""};
    for (const ProfileVariant& variant : profile.variants())
        variants.push_back(variant.name);
    LayoutStore layouts(silent, {}, {});
    layouts.setProfileFolders({QFileInfo(mFile).path()});
    QCOMPARE(layouts.all().size(), std::size_t(6));
    const QColor colours[] = {"#009E73", "#E69F00", "#D55E00"}; // that everybody can tell apart
    for (const std::string& variant : variants) {
        QVERIFY(profile.loadProfile(mFile, variant));
        for (const char* key : {"GroundSpeed", "ThrottleA", "FuelA", "FuelB", "Altitude", "Latitude", "Longitude", "Track", "EngineSpeed", "LaneCheck"})
            QVERIFY2(!profile.getParameterFromZarnType(key).name.empty(), key);
        for (const uint32_t position : {1036, 1037, 1038}) // where the path export looks
            QVERIFY(!profile.model().parameter(position).zarnDataType.empty());
        for (const DisplayLayout& layout : layouts.all())
            QCOMPARE(LayoutStore::missing(layout, profile), QStringList());
        QCOMPARE(profile.model().errorMatrices.size(), std::size_t(2));
        for (const FaultMatrix& matrix : profile.model().errorMatrices)
            QCOMPARE(matrix.bits.size(), std::size_t(32));
        for (const ThresholdList& list : profile.model().thresholdLists) {
            QVERIFY(list.size() >= 2);
            for (const Threshold& band : list)
                QCOMPARE(band.colour, colours[band.state]);
        }
    }
}

QTEST_GUILESS_MAIN(TestShippedProfile)
#include "test_shipped_profile.moc"
