#include "Proc/Settings/SettingsFrameUploader.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFrameUploader::CLASS_ID ZORVAN_INIT_STRINGS = "$$FRAME_UPLOADER$$";
bool SettingsFrameUploader::s_metalHasHigherPriority = true;

const std::string& SettingsFrameUploader::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFrameUploader::Clone() const
{
    return std::make_unique<SettingsFrameUploader>(*this);
}

} // namespace Zorvan::Proc
