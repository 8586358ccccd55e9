#include "Proc/Settings/SettingsFrameDownloader.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFrameDownloader::CLASS_ID ZORVAN_INIT_STRINGS = "$$FRAME_DOWNLOADER$$";

const std::string& SettingsFrameDownloader::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFrameDownloader::Clone() const
{
    return std::make_unique<SettingsFrameDownloader>(*this);
}

} // namespace Zorvan::Proc
