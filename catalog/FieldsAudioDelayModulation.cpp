#include "Proc/Settings/SettingsAudioChorus.h"
#include "Proc/Settings/SettingsAudioEcho.h"
#include "Proc/Settings/SettingsAudioFlanger.h"
#include "Proc/Settings/SettingsAudioVibrato.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsAudioDelayModulation(FieldMap& fields)
{
    using Proc::SettingsAudioChorus;
    using Proc::SettingsAudioEcho;
    using Proc::SettingsAudioFlanger;
    using Proc::SettingsAudioVibrato;
    fields["SettingsAudioChorus"] = {
        FieldJson<SettingsAudioChorus>("voices",
                                       [](const SettingsAudioChorus& c) {
                                           nlohmann::json list = nlohmann::json::array();
                                           for (const auto& voice : c.GetVoices()) {
                                               list.push_back({{"delay", voice.delay},
                                                               {"decay", voice.decay},
                                                               {"speed", voice.speed},
                                                               {"depth", voice.depth}});
                                           }
                                           return list;
                                       }),
        Field<SettingsAudioChorus>("gainIn", &SettingsAudioChorus::GetGainIn),
        Field<SettingsAudioChorus>("gainOut", &SettingsAudioChorus::GetGainOut),
        Field<SettingsAudioChorus>("intensity", &SettingsAudioChorus::GetIntensity),
    };
    fields["SettingsAudioEcho"] = {
        FieldJson<SettingsAudioEcho>("echos",
                                     [](const SettingsAudioEcho& c) {
                                         nlohmann::json list = nlohmann::json::array();
                                         for (const auto& echo : c.GetEchos()) {
                                             list.push_back({{"delay", echo.delay}, {"decay", echo.decay}});
                                         }
                                         return list;
                                     }),
        Field<SettingsAudioEcho>("gainIn", &SettingsAudioEcho::GetGainIn),
        Field<SettingsAudioEcho>("gainOut", &SettingsAudioEcho::GetGainOut),
        Field<SettingsAudioEcho>("intensity", &SettingsAudioEcho::GetIntensity),
    };
    fields["SettingsAudioFlanger"] = {
        Field<SettingsAudioFlanger>("delay", &SettingsAudioFlanger::GetDelay),
        Field<SettingsAudioFlanger>("depth", &SettingsAudioFlanger::GetDepth),
        Field<SettingsAudioFlanger>("regen", &SettingsAudioFlanger::GetRegen),
        Field<SettingsAudioFlanger>("intensity", &SettingsAudioFlanger::GetIntensity),
        Field<SettingsAudioFlanger>("speed", &SettingsAudioFlanger::GetSpeed),
        Field<SettingsAudioFlanger>("phase", &SettingsAudioFlanger::GetPhase),
        Field<SettingsAudioFlanger>("shape", &SettingsAudioFlanger::GetShape),
        Field<SettingsAudioFlanger>("interpolation", &SettingsAudioFlanger::GetInterpolation),
    };
    fields["SettingsAudioVibrato"] = {
        Field<SettingsAudioVibrato>("frequency", &SettingsAudioVibrato::GetFrequency),
        Field<SettingsAudioVibrato>("intensity", &SettingsAudioVibrato::GetIntensity),
    };
}

} // namespace Zorvan::CatalogDetail
