#pragma once

#include <QString>

namespace ZARN {

/// The root of the source tree and that of the build, without a trailing "/". They are compiled into one small file alone, so that a compiler
/// cache serves every copy of the tree.
QString sourceDir();
QString binaryDir();

} // namespace ZARN
