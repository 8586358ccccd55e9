#include "Proc/Settings/SettingsEffectHumanMatting.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsEffectHumanMatting::CLASS_ID ZORVAN_INIT_STRINGS = "EffectHumanMatting";

const std::string& SettingsEffectHumanMatting::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectHumanMatting::Clone() const
{
    return std::make_unique<SettingsEffectHumanMatting>(*this);
}

void SettingsEffectHumanMatting::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    if (const std::string_view path = OptionRegexSearch(options, "nnm_file", ""); !path.empty()) {
        SetModelPath(std::string(path));
    }
    if (const auto type = GetOption<unsigned long>(options, "nnm_type", "")) {
        SetModelType(static_cast<NeuralNetworkModelInfo::ExecutorType>(*type));
    }
    if (const auto size = GetOption<unsigned int>(options, "downscaling_frame_size", "")) {
        SetDownscalingFrameSize(*size);
    }
}

void SettingsEffectHumanMatting::SetModelPath(const std::string& path)
{
    modelInfo.path = path;
}

void SettingsEffectHumanMatting::SetModelBinaryData(const std::string& data)
{
    modelInfo.binaryData = data;
}

void SettingsEffectHumanMatting::SetModelType(NeuralNetworkModelInfo::ExecutorType type)
{
    modelInfo.executorType = type;
}

const NeuralNetworkModelInfo& SettingsEffectHumanMatting::GetModelInfo() const
{
    return modelInfo;
}

void SettingsEffectHumanMatting::SetDownscalingFrameSize(unsigned int size)
{
    downscalingFrameSize = size;
}

unsigned int SettingsEffectHumanMatting::GetDownscalingFrameSize() const
{
    return downscalingFrameSize;
}

} // namespace Zorvan::Proc
