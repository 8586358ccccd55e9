#include "Proc/Settings/SettingsAudioSpeechDenoiser.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

const std::string SettingsAudioSpeechDenoiser::CLASS_ID ZORVAN_INIT_STRINGS = "SpeechDenoiser";

const std::string SettingsAudioSpeechDenoiser::s_sampleRate ZORVAN_INIT_STRINGS = "sample_rate";
const std::string SettingsAudioSpeechDenoiser::s_duration ZORVAN_INIT_STRINGS = "duration";
const std::string SettingsAudioSpeechDenoiser::s_modelPath ZORVAN_INIT_STRINGS = "nnm_file";
const std::string SettingsAudioSpeechDenoiser::s_modelType ZORVAN_INIT_STRINGS = "nnm_type";

const std::vector<std::string> SettingsAudioSpeechDenoiser::s_params ZORVAN_INIT_PARAMS = {
    s_sampleRate,
    s_duration,
    s_modelPath,
    s_modelType,
};

const std::string& SettingsAudioSpeechDenoiser::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAudioSpeechDenoiser::Clone() const
{
    return std::make_unique<SettingsAudioSpeechDenoiser>(*this);
}

bool SettingsAudioSpeechDenoiser::IsEqualTo(const Settings& other) const
{
    const auto& that = dynamic_cast<const SettingsAudioSpeechDenoiser&>(other);
    return sampleRate == that.sampleRate && duration == that.duration && modelInfo == that.modelInfo;
}

void SettingsAudioSpeechDenoiser::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    if (const auto value = MapForm::Find<int>(map, s_sampleRate)) {
        SetSampleRate(*value);
    }
    if (const auto value = MapForm::Find<long long>(map, s_duration)) {
        SetDuration(std::chrono::milliseconds(*value));
    }
    // A model file replaces model data given before, whatever the record held.
    if (const std::string* file = MapForm::FindText(map, s_modelPath)) {
        modelInfo.binaryData.clear();
        modelInfo.path = Core::Utils::RemoveQuotes(*file);
    }
    MapForm::Read(map, s_modelType, modelInfo.executorType);
}

void SettingsAudioSpeechDenoiser::SetSampleRate(int value)
{
    // Dropped, not refused, unlike the other audio setters: the stage keeps running as it was.
    if (value >= 1) {
        sampleRate = value;
    }
}

void SettingsAudioSpeechDenoiser::SetDuration(const std::chrono::milliseconds& value)
{
    if (value.count() >= 1) {
        duration = value;
    }
}

void SettingsAudioSpeechDenoiser::SetModelPath(const std::string& path)
{
    modelInfo.path = path;
}

void SettingsAudioSpeechDenoiser::SetModelBinaryData(const std::string& data)
{
    modelInfo.binaryData = data;
}

void SettingsAudioSpeechDenoiser::SetModelType(NeuralNetworkModelInfo::ExecutorType type)
{
    modelInfo.executorType = type;
}

int SettingsAudioSpeechDenoiser::GetSampleRate() const
{
    return sampleRate;
}

std::chrono::milliseconds SettingsAudioSpeechDenoiser::GetDuration() const
{
    return duration;
}

const NeuralNetworkModelInfo& SettingsAudioSpeechDenoiser::GetModelInfo() const
{
    return modelInfo;
}

} // namespace Zorvan::Proc
