#include "app/Console.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace ZARN {

namespace {

Console::Sink streamSink(FILE* stream)
{
    return [stream](std::string_view text) { std::fwrite(text.data(), 1, text.size(), stream); };
}

} // namespace

Console::Console(Sink sink, Sink errorSink, bool verbose) : mSink(std::move(sink)), mErrorSink(std::move(errorSink)), mVerbose(verbose) {}

void Console::print(const char* format, ...) const
{
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    if (length > 0) {
        std::string text(static_cast<std::size_t>(length) + 1, '\0');
        std::vsnprintf(text.data(), text.size(), format, again);
        text.pop_back();
        write(text);
    }
    va_end(again);
}

void Console::write(std::string_view text) const
{
    const std::lock_guard guard(mGuard);
    mSink(text);
}

void Console::systemError(const char* prefix, int error) const
{
    const std::lock_guard guard(mGuard);
    mErrorSink(std::string(prefix) + ": " + std::strerror(error) + "\n");
}

Console& Console::standardOutput()
{
    static Console console(streamSink(stdout), streamSink(stderr));
    return console;
}

Console& Console::standardError()
{
    static Console console(streamSink(stderr), streamSink(stderr), false);
    return console;
}

} // namespace ZARN
