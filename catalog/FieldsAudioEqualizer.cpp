#include "Proc/Settings/SettingsAudioDistortion.h"
#include "Proc/Settings/SettingsAudioEqualizer.h"
#include "Proc/Settings/SettingsAudioRadio.h"
#include "Proc/Settings/SettingsEffectAudioStereo2DualMono.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

namespace {

// [{frequency, gain}, ...] in list order.
nlohmann::json FromBands(const Proc::SettingsAudioEqualizer::Multiband& bands)
{
    nlohmann::json list = nlohmann::json::array();
    for (const auto& band : bands) {
        list.push_back({{"frequency", band.frequency}, {"gain", band.gain}});
    }
    return list;
}

} // namespace

void AddFieldsAudioEqualizer(FieldMap& fields)
{
    using Proc::SettingsAudioDistortion;
    using Proc::SettingsAudioEqualizer;
    using Proc::SettingsAudioRadio;
    using Proc::SettingsEffectAudioStereo2DualMono;
    fields["SettingsAudioEqualizer"] = {
        FieldJson<SettingsAudioEqualizer>("multiband",
                                          [](const SettingsAudioEqualizer& c) { return FromBands(c.GetMultiband()); }),
        Field<SettingsAudioEqualizer>("intensity", &SettingsAudioEqualizer::GetIntensity),
    };
    fields["SettingsAudioRadio"] = {
        FieldJson<SettingsAudioRadio>("equalizer",
                                      [](const SettingsAudioRadio& c) {
                                          return nlohmann::json{
                                              {"multiband", FromBands(c.GetEqualizer().GetMultiband())},
                                              {"intensity", c.GetEqualizer().GetIntensity()}};
                                      }),
        Field<SettingsAudioRadio>("cracklePrecision", &SettingsAudioRadio::GetCracklePrecision),
        Field<SettingsAudioRadio>("noiseLevel", &SettingsAudioRadio::GetNoiseLevel),
        Field<SettingsAudioRadio>("intensity", &SettingsAudioRadio::GetIntensity),
    };
    fields["SettingsAudioDistortion"] = {
        Field<SettingsAudioDistortion>("type", &SettingsAudioDistortion::GetType),
        Field<SettingsAudioDistortion>("intensity", &SettingsAudioDistortion::GetIntensity),
        Field<SettingsAudioDistortion>("boost", &SettingsAudioDistortion::GetBoost),
        Field<SettingsAudioDistortion>("tone", &SettingsAudioDistortion::GetTone),
    };
    fields["SettingsEffectAudioStereo2DualMono"] = {
        Field<SettingsEffectAudioStereo2DualMono>("channel", &SettingsEffectAudioStereo2DualMono::GetChannel),
    };
}

} // namespace Zorvan::CatalogDetail
