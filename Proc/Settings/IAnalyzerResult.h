#pragma once
// The base of what analyzers hand back.
#include "Proc/Settings/Export.h"

namespace Zorvan::Proc {

// An interface with nothing in it but a virtual destructor, so that a result of
// any analyzer can be held and destroyed through this one type. The destructor is defined
// out of line, so that the virtual table and the type information are the library's.
class ZORVAN_SETTINGS_EXPORT IAnalyzerResult {
public:
    virtual ~IAnalyzerResult();

protected:
    IAnalyzerResult() = default;
    IAnalyzerResult(const IAnalyzerResult&) = default;
    IAnalyzerResult& operator=(const IAnalyzerResult&) = default;
};

} // namespace Zorvan::Proc
