#include "Proc/Settings/SettingsPixelFormatConverter.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsPixelFormatConverter::CLASS_ID ZORVAN_INIT_STRINGS = "PixelFormatConverter";

const std::string& SettingsPixelFormatConverter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsPixelFormatConverter::Clone() const
{
    return std::make_unique<SettingsPixelFormatConverter>(*this);
}

} // namespace Zorvan::Proc
