#pragma once
#include "Proc/Settings/Export.h"

namespace Zorvan::Proc {

// Part 2.6: the plain value class (not a Settings) that SettingsFilterFPSDoubler and
// SettingsFilterSlowMotion name as their first, non-public base. Its fields (model,
// resize method, resize percents) and DeserializeSettings come with Part 2.6's
// frame-generation records; until then it holds nothing.
class ZORVAN_SETTINGS_EXPORT AIFrameGeneratorSettings {};

} // namespace Zorvan::Proc
