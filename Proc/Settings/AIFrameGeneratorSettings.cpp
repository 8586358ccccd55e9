#include "Proc/Settings/AIFrameGeneratorSettings.h"

#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Settings.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

void AIFrameGeneratorSettings::SetModelPath(const std::string& path)
{
    modelInfo.path = path;
}

void AIFrameGeneratorSettings::SetModelBinaryData(const std::string& data)
{
    modelInfo.binaryData = data;
}

void AIFrameGeneratorSettings::SetModelType(NeuralNetworkModelInfo::ExecutorType type)
{
    modelInfo.executorType = type;
}

const NeuralNetworkModelInfo& AIFrameGeneratorSettings::GetModelInfo() const
{
    return modelInfo;
}

void AIFrameGeneratorSettings::SetResizeMethod(SettingsResizer::ResizeMethods method)
{
    resizeMethod = method;
}

SettingsResizer::ResizeMethods AIFrameGeneratorSettings::GetResizeMethod() const
{
    return resizeMethod;
}

void AIFrameGeneratorSettings::SetResizePercents(unsigned char percents)
{
    resizePercents = percents;
}

unsigned char AIFrameGeneratorSettings::GetResizePercents() const
{
    return resizePercents;
}

void AIFrameGeneratorSettings::DeserializeSettings(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = Settings::GetOptionsMap(options, {"nnm_file", "nnm_type", "resize_method", "resize_percents"});
    if (const std::string* file = MapForm::FindText(map, "nnm_file")) {
        modelInfo.binaryData.clear();
        modelInfo.path = Core::Utils::RemoveQuotes(*file);
    }
    MapForm::Read(map, "nnm_type", modelInfo.executorType);
    MapForm::Read(map, "resize_method", resizeMethod);
    if (const std::string* percents = MapForm::FindText(map, "resize_percents")) {
        // Saved projects may hold any number here; only its low byte is kept.
        resizePercents = static_cast<unsigned char>(std::stoul(*percents, nullptr, 10));
    }
}

bool AIFrameGeneratorSettings::operator==(const AIFrameGeneratorSettings& other) const
{
    return modelInfo == other.modelInfo && resizeMethod == other.resizeMethod && resizePercents == other.resizePercents;
}

} // namespace Zorvan::Proc
