#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOnnxRT.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerVideoTrackObjectOnnxRT::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsAnalyzerVideoTrackObjectOnnxRT";

SettingsAnalyzerVideoTrackObjectOnnxRT::~SettingsAnalyzerVideoTrackObjectOnnxRT() = default;

const std::string& SettingsAnalyzerVideoTrackObjectOnnxRT::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerVideoTrackObjectOnnxRT::Clone() const
{
    return std::make_unique<SettingsAnalyzerVideoTrackObjectOnnxRT>(*this);
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(
        options, {"backbone_nnm_file", "backbone_nnm_type", "head_nnm_file", "head_nnm_type", "confidence_threshold"});
    if (const std::string* file = MapForm::FindText(map, "backbone_nnm_file")) {
        SetBackboneModelBinaryData("");
        SetBackboneModelPath(Core::Utils::RemoveQuotes(*file));
    }
    if (const auto type = MapForm::Find<NeuralNetworkModelInfo::ExecutorType>(map, "backbone_nnm_type")) {
        SetBackboneModelType(*type);
    }
    if (const std::string* file = MapForm::FindText(map, "head_nnm_file")) {
        SetHeadModelBinaryData("");
        SetHeadModelPath(Core::Utils::RemoveQuotes(*file));
    }
    if (const auto value = MapForm::Find<float>(map, "confidence_threshold")) {
        SetConfidenceThreshold(*value);
    }
    if (const auto type = MapForm::Find<NeuralNetworkModelInfo::ExecutorType>(map, "head_nnm_type")) {
        SetHeadModelType(*type);
    }
    SettingsAnalyzerVideoTrackObjectBase::Deserialize(options);
}

bool SettingsAnalyzerVideoTrackObjectOnnxRT::operator==(const SettingsAnalyzerVideoTrackObjectOnnxRT& other) const
{
    return begin == other.begin && rect.left == other.rect.left && rect.top == other.rect.top &&
           rect.width == other.rect.width && rect.height == other.rect.height &&
           backboneModelInfo.path == other.backboneModelInfo.path &&
           backboneModelInfo.binaryData == other.backboneModelInfo.binaryData &&
           backboneModelInfo.executorType == other.backboneModelInfo.executorType &&
           headModelInfo.path == other.headModelInfo.path &&
           headModelInfo.binaryData == other.headModelInfo.binaryData &&
           headModelInfo.executorType == other.headModelInfo.executorType;
}

bool SettingsAnalyzerVideoTrackObjectOnnxRT::operator!=(const SettingsAnalyzerVideoTrackObjectOnnxRT& other) const
{
    return !(*this == other);
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::SetBackboneModelPath(const std::string& path)
{
    if (!backboneModelInfo.binaryData.empty()) {
        ThrowAnalyzer("Backbone model already settled by binary data!");
    }
    backboneModelInfo.path = path;
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::SetBackboneModelBinaryData(const std::string& data)
{
    if (!backboneModelInfo.path.empty()) {
        ThrowAnalyzer("Backbone model already settled by file path!");
    }
    backboneModelInfo.binaryData = data;
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::SetHeadModelPath(const std::string& path)
{
    if (!headModelInfo.binaryData.empty()) {
        ThrowAnalyzer("Head model already settled by binary data!");
    }
    headModelInfo.path = path;
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::SetHeadModelBinaryData(const std::string& data)
{
    if (!headModelInfo.path.empty()) {
        ThrowAnalyzer("Head model already settled by file path!");
    }
    headModelInfo.binaryData = data;
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::SetBackboneModelType(NeuralNetworkModelInfo::ExecutorType type)
{
    backboneModelInfo.executorType = type;
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::SetHeadModelType(NeuralNetworkModelInfo::ExecutorType type)
{
    headModelInfo.executorType = type;
}

const NeuralNetworkModelInfo& SettingsAnalyzerVideoTrackObjectOnnxRT::GetBackboneModelInfo() const
{
    return backboneModelInfo;
}

const NeuralNetworkModelInfo& SettingsAnalyzerVideoTrackObjectOnnxRT::GetHeadModelInfo() const
{
    return headModelInfo;
}

void SettingsAnalyzerVideoTrackObjectOnnxRT::SetConfidenceThreshold(float value)
{
    confidenceThreshold = value;
}

float SettingsAnalyzerVideoTrackObjectOnnxRT::GetConfidenceThreshold() const
{
    return confidenceThreshold;
}

} // namespace Zorvan::Proc
