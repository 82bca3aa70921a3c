#include "app/Property.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>

// Reads the input as a settings file or, by its first byte, as a file of "key = value" lines. What was taken in and can be written comes
// back the same.

namespace {

using namespace ZARN;

QByteArray contentOf(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    REQUIRE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    static const QTemporaryDir folder("/dev/shm/FuzzSettings-XXXXXX");
    static const std::array files{folder.filePath("first").toStdString(), folder.filePath("second").toStdString(),
                                  folder.filePath("third").toStdString()};
    Input input(pData, size);
    const bool isXml = input.byte() % 2 == 0;
    const MemoryFile file(input.rest(), input.left());
    Property read(silence());
    if (isXml)
        REQUIRE(read.readXmlFile(file.path().toStdString()));
    else
        read.readConfigFile(file.path().toStdString());
    for (const char* pKey : {"Locale", "FontSize", "", "a b"}) {
        static_cast<void>(read.getInt(pKey, 0));
        static_cast<void>(read.getDouble(pKey, 0.0));
        static_cast<void>(read.getSwitch(pKey, false));
    }
    if (!read.writeXmlFile(files[0]))
        return 0;
    // Bytes that are no UTF-8 become another character the first time, from then on all stays.
    for (std::size_t i = 1; i < files.size(); ++i) {
        Property again(silence());
        REQUIRE(again.readXmlFile(files[i - 1]) && again.writeXmlFile(files[i]));
    }
    REQUIRE(contentOf(files[1]) == contentOf(files[2]));
    return 0;
}
