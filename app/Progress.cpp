#include "app/Progress.h"

namespace ZARN {

Progress& nullProgress()
{
    struct Null final : Progress {
        void setProgress(int) override {}
    };
    static Null instance;
    return instance;
}

} // namespace ZARN
