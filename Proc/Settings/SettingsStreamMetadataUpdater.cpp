#include "Proc/Settings/SettingsStreamMetadataUpdater.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsStreamMetadataUpdater::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsStreamMetadataUpdater";

const std::string& SettingsStreamMetadataUpdater::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsStreamMetadataUpdater::Clone() const
{
    return std::make_unique<SettingsStreamMetadataUpdater>(*this);
}

} // namespace Zorvan::Proc
