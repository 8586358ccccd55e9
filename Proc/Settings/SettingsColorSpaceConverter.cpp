#include "Proc/Settings/SettingsColorSpaceConverter.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsColorSpaceConverter::CLASS_ID ZORVAN_INIT_STRINGS = "ColorSpaceConverter";

const std::string& SettingsColorSpaceConverter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsColorSpaceConverter::Clone() const
{
    return std::make_unique<SettingsColorSpaceConverter>(*this);
}

} // namespace Zorvan::Proc
