#include "support/Places.h"

namespace ZARN {

QString sourceDir()
{
    return QStringLiteral(ZARN_SOURCE_DIR);
}

QString binaryDir()
{
    return QStringLiteral(ZARN_BINARY_DIR);
}

} // namespace ZARN
