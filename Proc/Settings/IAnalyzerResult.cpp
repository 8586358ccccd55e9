#include "Proc/Settings/IAnalyzerResult.h"

namespace Zorvan::Proc {

IAnalyzerResult::~IAnalyzerResult() = default;

} // namespace Zorvan::Proc
