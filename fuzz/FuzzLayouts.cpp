#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "project/LayoutStore.h"

#include <QTemporaryDir>

#include <cmath>

// Takes the input for a file of layouts. Whatever is taken in is bounded and finite, and comes back the same from the user's own file.

using namespace ZARN;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    static const QTemporaryDir folder("/dev/shm/FuzzLayouts-XXXXXX");
    const QString own = folder.filePath("Layouts.xml");
    QFile::remove(own);
    const MemoryFile file(pData, size);
    LayoutStore store(silence(), own, "de");
    const QStringList names = store.importFrom(file.path());
    REQUIRE(static_cast<std::size_t>(names.size()) == store.all().size());
    for (const DisplayLayout& layout : store.all()) {
        REQUIRE(!layout.name.isEmpty() && layout.name == DisplayLayout::tidyName(layout.name) && names.contains(layout.name));
        REQUIRE(layout.parameters.size() <= DisplayLayout::kMostParameters);
        for (const DisplayLayout::Parameter& parameter : layout.parameters) {
            REQUIRE(parameter.height >= DisplayLayout::kLeastHeight && parameter.height <= DisplayLayout::kGreatestHeight);
            REQUIRE(!parameter.scale || (std::isfinite(parameter.scale->lower) && std::isfinite(parameter.scale->upper)));
        }
    }
    const LayoutStore again(silence(), own, "de");
    const auto written = again.all();
    REQUIRE(!store.file().isWritten() || written.size() == store.all().size());
    for (std::size_t i = 0; i < written.size(); ++i) {
        DisplayLayout layout = store.all()[i];
        layout.title.clear(); // only shipped ones have titles
        REQUIRE(written[i] == layout);
    }
    return 0;
}
