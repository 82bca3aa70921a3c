#include "app/gui/Application.h"

#include "app/Console.h"
#include "app/gui/PasteGuard.h"

#include <QMessageBox>

#include <new>

namespace ZARN {

namespace {

constexpr std::size_t kReserve = std::size_t(4) * 1024 * 1024;

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv), mReserve(kReserve)
{
    installEventFilter(new PasteGuard(this));
}

bool Application::notify(QObject* pReceiver, QEvent* pEvent)
{
    try {
        return QApplication::notify(pReceiver, pEvent);
    } catch (const std::bad_alloc&) {
        end();
        return true;
    }
}

void Application::end()
{
    const bool isFirst = mReserve.capacity() != 0;
    std::vector<char>().swap(mReserve);
    reportExhausted();
    if (isFirst) { // else the message itself was too much
        for (QWidget* pWindow : topLevelWidgets())
            pWindow->hide(); // what they show may be half done
        QMessageBox(QMessageBox::Critical, tr("ZARN Warning"), tr("The memory is not enough: ZARN ends.\nSettings are kept.")).exec();
    }
    exit(1);
}

int Application::reportExhausted()
{
    Console::standardError().print("zarn: the memory is not enough; the program ends, settings are kept\n");
    return 1;
}

} // namespace ZARN
