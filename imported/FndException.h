#pragma once
// Stand-in for the sibling library FndException: the engine's exception base and call stacks.
#include <exception>
#include <string>

#include <boost/exception/exception.hpp>
#include <boost/exception/info.hpp>

#include "imported/Export.h"

namespace Zorvan {

// Base of the engine's exceptions: std::exception and boost::exception, both virtual.
class ZORVAN_IMPORTED_EXPORT Exception : public virtual std::exception, public virtual boost::exception {
public:
    Exception() = default;
    Exception(const Exception&) = default;
    Exception& operator=(const Exception&) = default;
    ~Exception() override;
};

struct TagDescription;
struct TagCallStack;

using ErrorInfoDescription = boost::error_info<TagDescription, std::string>;
using ErrorInfoCallStack = boost::error_info<TagCallStack, std::string>;

// The current call stack as text: one line a frame, innermost first, as glibc's
// backtrace_symbols() writes it (module, symbol where the dynamic symbol table has
// one, offset, address). It captures at most 64 frames and never throws; when the
// capture fails it returns an empty string, which the library accepts.
ZORVAN_IMPORTED_EXPORT std::string GetCallStack();

} // namespace Zorvan
