#include "app/Property.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"

#include <QFile>
#include <QTemporaryDir>

// Reads the input as a settings file or, by its first byte, as a file of "key = value" lines. What was taken in and can be written comes
// back the same.

namespace {

using namespace ZARN;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    static const QTemporaryDir folder("/dev/shm/FuzzSettings-XXXXXX");
    const std::string first = folder.filePath("first").toStdString();
    const std::string second = folder.filePath("second").toStdString();
    Input input(pData, size);
    const bool isXml = input.byte() % 2 == 0;
    const MemoryFile file(input.rest(), input.left());
    Property read(silence());
    if (isXml)
        REQUIRE(read.readXmlFile(file.path().toStdString()));
    else
        read.readConfigFile(file.path().toStdString());
    for (const char* pKey : {"Locale", "FontSize", "", "a b"}) {
        read.getInt(pKey, 0);
        read.getDouble(pKey, 0.0);
        read.getSwitch(pKey, false);
    }
    if (!read.writeXmlFile(first))
        return 0;
    Property again(silence());
    REQUIRE(again.readXmlFile(first));
    REQUIRE(again.writeXmlFile(second));
    REQUIRE(contentOf(QString::fromStdString(first)) == contentOf(QString::fromStdString(second)));
    return 0;
}
