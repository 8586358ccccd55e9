#pragma once
#include "Proc/Settings/Export.h"

namespace Zorvan::Proc {

// The plain value class (not a Settings) that SettingsFilterFPSDoubler and
// SettingsFilterSlowMotion share as their first, non-public base. Its fields (model,
// resize method, resize percents) and DeserializeSettings come with those
// frame-generation records; until then it holds nothing.
class ZORVAN_SETTINGS_EXPORT AIFrameGeneratorSettings {};

} // namespace Zorvan::Proc
