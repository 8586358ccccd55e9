#include "Proc/Settings/SettingsTwoPassEncoding.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsTwoPassEncoding::CLASS_ID ZORVAN_INIT_STRINGS = "TWO_PASS_ENCODING";

const std::string& SettingsTwoPassEncoding::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTwoPassEncoding::Clone() const
{
    return std::make_unique<SettingsTwoPassEncoding>(*this);
}

} // namespace Zorvan::Proc
