#include "Proc/Settings/SettingsEffect360Cylindrical.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffect360Cylindrical::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsEffect360Cylindrical";

const std::string& SettingsEffect360Cylindrical::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffect360Cylindrical::Clone() const
{
    return std::make_unique<SettingsEffect360Cylindrical>(*this);
}

} // namespace Zorvan::Proc
