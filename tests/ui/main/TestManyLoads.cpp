#include "sim/DemoCard.h"
#include "ui/data/DataTabBar.h"
#include "ui/main/DesktopFixture.h"

#include <QPixmapCache>

#include <malloc.h>
#ifdef __SANITIZE_ADDRESS__
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // its header is not shipped with every compiler
#endif

using namespace ZARN;

/// A window that is open all day: what one load after the other takes must come back. ZARN_LOADS=1000 makes a day of it.
class TestManyLoads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void memoryComesBack();
};

namespace {

double allocated()
{
    QPixmapCache::clear(); // the style keeps pictures of its own, up to a bound
#ifdef __SANITIZE_ADDRESS__
    return static_cast<double>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
#endif
}

} // namespace

void TestManyLoads::memoryComesBack()
{
    const QTemporaryDir home;
    const QString card = home.filePath("Card");
    std::string error;
    QVERIFY2(DemoCard().write(card.toStdString(), DemoCardOptions{}, error), error.c_str());
    DesktopFixture desktop(home.path());
    DialogMain& window = desktop.open();
    started(window);
    window.openFolder(card);
    settled(window);
    auto* pTabs = window.findChild<DataTabBar*>();
    const auto load = [&](int number) {
        window.slotLoadCycle(1 + static_cast<unsigned>(number) % 3, -1);
        settled(window);
        pTabs->setCurrentIndex(number / 3 % pTabs->count());
        QCoreApplication::processEvents();
        desktop.console.take(); // what is told there stays in this test alone
    };
    const int round = 3 * pTabs->count(); // each cycle in each view
    const int loads = std::max(qEnvironmentVariableIntValue("ZARN_LOADS"), round);
    for (int i = 0; i < round; ++i)
        load(i);
    const double before = allocated();
    int done = 0;
    for (; done < loads || done % round != 0; ++done)
        load(done);
    const double growth = (allocated() - before) / done;
    qInfo("%d loads, %.0f bytes more after each", done, growth);
    QVERIFY2(growth < 16 * 1024, qPrintable(QString::number(growth)));
}

QTEST_MAIN(TestManyLoads)
#include "TestManyLoads.moc"
