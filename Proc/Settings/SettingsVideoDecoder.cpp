#include "Proc/Settings/SettingsVideoDecoder.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsVideoDecoder::CLASS_ID ZORVAN_INIT_STRINGS = "VideoDecoder";

const std::string& SettingsVideoDecoder::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsVideoDecoder::Clone() const
{
    return std::make_unique<SettingsVideoDecoder>(*this);
}

} // namespace Zorvan::Proc
