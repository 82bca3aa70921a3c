#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "profile/Profile.h"
#include "project/Project.h"

#include <QTemporaryDir>

#include <string>

// Reads the input as a project file over a small profile. What was refused must have changed nothing; what was taken in, and is
// then written, must come back the same.

namespace {

using namespace ZARN;

Profile& smallProfile()
{
    static Profile profile(silence());
    static const bool loaded = [] {
        const std::string text = R"(<CanAerospaceProfile><Device name="D"><Parameter name="A"/><Parameter name="B"/>)"
                                 R"(<Parameter name="Oil &lt;T&gt;"/></Device></CanAerospaceProfile>)";
        const MemoryFile file(reinterpret_cast<const uint8_t*>(text.data()), text.size());
        return profile.loadProfile(file.path(), "");
    }();
    REQUIRE(loaded && profile.data().size() == 1);
    return profile;
}

std::set<std::string> selected()
{
    std::set<std::string> names;
    for (const ProfileParameter& parameter : smallProfile().data().front().parameters) {
        if (smallProfile().isSelected(parameter.name))
            names.insert(parameter.name);
    }
    return names;
}

/// Writes the project to a file of its own and reads it back.
void writeAndRead(Project& project)
{
    static const QTemporaryDir folder("/dev/shm/FuzzProject-XXXXXX");
    const QString file = folder.filePath("project.xml");
    const std::set<std::string> shown = selected();
    project.saveProject(file);
    for (const std::string& name : shown)
        smallProfile().setSelected(name, false);
    Project again(silence(), smallProfile());
    REQUIRE(again.readProject(file));
    REQUIRE(selected() == shown);
    REQUIRE(again.canProperties() == project.canProperties());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Project project(silence(), smallProfile());
    const std::map<std::string, std::string> before{{"kept", "1"}};
    project.setCanProperties(before);
    const std::set<std::string> shown = selected();
    const MemoryFile input(pData, size);
    if (project.readProject(input.path())) {
        writeAndRead(project);
    } else {
        REQUIRE(project.parameterNames().empty() && project.canProperties() == before);
        REQUIRE(selected() == shown);
    }
    return 0;
}
