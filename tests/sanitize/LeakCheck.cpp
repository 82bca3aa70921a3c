// For programs under the leak checker.

#include <sanitizer/lsan_interface.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <thread>

extern "C" int dlclose(void* pLibrary);

/// The toolkit has unloaded the driver of the screen by then, and the checker would take for lost what that driver's own variables still point
/// to. Libraries stay loaded instead.
int dlclose(void* /*pLibrary*/)
{
    return 0;
}

namespace {

/// The checker looks into the memory of every thread, and falls over one that is just ending. By itself it would run when libraries have ended
/// what they keep (the threads of the screen's driver), so it is asked before, when all is quiet; it runs only once.
struct CheckWhenQuiet {
    ~CheckWhenQuiet()
    {
        constexpr int kQuietTurns = 10;
        for (int turn = 0, quiet = 0, before = 0; turn < 200 && quiet < kQuietTurns; ++turn) {
            std::error_code ignored;
            const auto count = static_cast<int>(std::distance(std::filesystem::directory_iterator("/proc/self/task", ignored), {}));
            quiet = count == before ? quiet + 1 : 0;
            before = count;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        __lsan_do_leak_check();
    }
};

const CheckWhenQuiet checkWhenQuiet;

} // namespace
