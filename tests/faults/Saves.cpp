#include "app/Console.h"
#include "app/Property.h"
#include "profile/Profile.h"
#include "project/LayoutStore.h"
#include "project/Project.h"
#include "store/LogbookEditor.h"

#include <cstdio>
#include <new>

// What the window keeps of a user's, read, changed and saved as it does it, for tests/faults/run:
//     fault_saves settings|project|layouts|notes FILE
// Ends with status 0 when the change is kept, else with 1 and the reason on standard error.

namespace {

using namespace ZARN;

const Console& console()
{
    const auto say = [](std::string_view text) { std::fprintf(stderr, "fault_saves: %.*s", static_cast<int>(text.size()), text.data()); };
    static const Console errors(say, say);
    return errors;
}

bool saveSettings(const std::string& path)
{
    Property settings(console());
    settings.readXmlFile(path);
    settings.setString("Locale", "de");
    return settings.writeXmlFile(path);
}

bool saveProject(const QString& path)
{
    Profile profile(console());
    Project project(console(), profile);
    project.readProject(path);
    project.setCanProperties({{"new", "2"}});
    project.saveProject(path);
    return project.file().isWritten();
}

bool saveLayouts(const QString& path)
{
    LayoutStore store(console(), path, {});
    DisplayLayout layout;
    layout.name = "new";
    layout.parameters.emplace_back().name = "A";
    return store.save(layout);
}

bool saveNote(const std::string& path)
{
    LogbookEditor editor(path);
    const bool isKept = editor.saveNote("cycle", {.id = 0, .time = 2.0, .text = "new", .written = QDateTime(QDate(2024, 6, 15), QTime(8, 0))});
    if (!editor.error().empty())
        std::fprintf(stderr, "fault_saves: %s\n", editor.error().c_str());
    return isKept;
}

bool save(const std::string& what, const std::string& path)
{
    if (what == "settings")
        return saveSettings(path);
    if (what == "project")
        return saveProject(QString::fromStdString(path));
    if (what == "layouts")
        return saveLayouts(QString::fromStdString(path));
    return saveNote(path);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3)
        return 2;
    try {
        return save(arguments[1], arguments[2]) ? 0 : 1;
    } catch (const std::bad_alloc&) {
        std::fputs("fault_saves: memory is full\n", stderr);
        return 1;
    }
}
