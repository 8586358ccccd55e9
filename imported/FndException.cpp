#include "imported/FndException.h"

#include <execinfo.h>

#include <cstdlib>

namespace Zorvan {

Exception::~Exception() = default;

std::string GetCallStack()
{
    constexpr int maxFrames = 64;
    void* frames[maxFrames];
    const int count = ::backtrace(frames, maxFrames);
    if (count <= 0) {
        return {};
    }
    char** symbols = ::backtrace_symbols(frames, count);
    if (symbols == nullptr) {
        return {};
    }
    std::string text;
    // Frame 0 is this function itself; the stack starts at its caller.
    for (int i = 1; i < count; ++i) {
        text += symbols[i];
        if (i + 1 < count) {
            text += '\n';
        }
    }
    std::free(symbols);
    return text;
}

} // namespace Zorvan
