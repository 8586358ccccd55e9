#include "Proc/Settings/SettingsAudioNoiseSuppress.h"
#include "Proc/Settings/SettingsAudioPitch.h"
#include "Proc/Settings/SettingsAudioRobot.h"
#include "Proc/Settings/SettingsAudioSpeechDenoiser.h"
#include "catalog/CatalogFields.h"
#include "catalog/JsonValues.h"

namespace Zorvan::CatalogDetail {

void AddFieldsAudioVoice(FieldMap& fields)
{
    using Proc::SettingsAudioNoiseSuppress;
    using Proc::SettingsAudioPitch;
    using Proc::SettingsAudioRobot;
    using Proc::SettingsAudioSpeechDenoiser;
    fields["SettingsAudioPitch"] = {
        Field<SettingsAudioPitch>("pitch", &SettingsAudioPitch::GetPitch),
        Field<SettingsAudioPitch>("intensity", &SettingsAudioPitch::GetIntensity),
    };
    fields["SettingsAudioRobot"] = {
        FieldJson<SettingsAudioRobot>(
            "pitch",
            [](const SettingsAudioRobot& c) {
                return nlohmann::json{{"pitch", c.GetPitch().GetPitch()}, {"intensity", c.GetPitch().GetIntensity()}};
            }),
        Field<SettingsAudioRobot>("level", &SettingsAudioRobot::GetLevel),
        Field<SettingsAudioRobot>("intensity", &SettingsAudioRobot::GetIntensity),
    };
    fields["SettingsAudioNoiseSuppress"] = {
        Field<SettingsAudioNoiseSuppress>("level", &SettingsAudioNoiseSuppress::GetLevel),
    };
    fields["SettingsAudioSpeechDenoiser"] = {
        Field<SettingsAudioSpeechDenoiser>("sampleRate", &SettingsAudioSpeechDenoiser::GetSampleRate),
        FieldJson<SettingsAudioSpeechDenoiser>(
            "duration", [](const SettingsAudioSpeechDenoiser& c) { return c.GetDuration().count(); }),
        FieldJson<SettingsAudioSpeechDenoiser>(
            "modelInfo", [](const SettingsAudioSpeechDenoiser& c) { return CatalogJson::FromModel(c.GetModelInfo()); }),
    };
}

} // namespace Zorvan::CatalogDetail
