#include "Proc/Settings/SettingsFilterBitStream.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterBitStream::CLASS_ID ZORVAN_INIT_STRINGS = "FilterBitStream";

const std::string& SettingsFilterBitStream::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterBitStream::Clone() const
{
    return std::make_unique<SettingsFilterBitStream>(*this);
}

} // namespace Zorvan::Proc
