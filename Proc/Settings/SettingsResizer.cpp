#include "Proc/Settings/SettingsResizer.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsResizer::CLASS_ID ZORVAN_INIT_STRINGS = "$$RESIZE$$";

const std::string& SettingsResizer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsResizer::Clone() const
{
    return std::make_unique<SettingsResizer>(*this);
}

} // namespace Zorvan::Proc
