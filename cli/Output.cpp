#include "cli/Output.h"

#include "cli/Command.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace ZARN {

void Output::write(std::string_view text)
{
    constexpr std::size_t kPiece = 256 * 1024;
    if (!isGood())
        return;
    mText += text;
    if (mText.size() >= kPiece)
        flush();
}

void Output::flush()
{
    if (std::fwrite(mText.data(), 1, mText.size(), stdout) != mText.size() || std::fflush(stdout) != 0)
        mError = errno != 0 ? errno : EIO;
    mText.clear();
}

int Output::finish()
{
    if (isGood())
        flush();
    if (isGood())
        return eDone;
    return mError == EPIPE ? eFailed : Command::fail(std::string("standard output: ") + std::strerror(mError));
}

} // namespace ZARN
