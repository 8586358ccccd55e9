#include "Proc/Settings/SettingsAudioReverb.h"
#include "Proc/Settings/SettingsAudioReverberationImpulseResponse.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsAudioReverberation(FieldMap& fields)
{
    using Proc::SettingsAudioReverb;
    using Proc::SettingsAudioReverberationImpulseResponse;
    using Ir = SettingsAudioReverberationImpulseResponse;
    fields["SettingsAudioReverb"] = {
        Field<SettingsAudioReverb>("intensity", &SettingsAudioReverb::GetIntensity),
    };
    fields["SettingsAudioReverberationImpulseResponse"] = {
        Field<Ir>("reverberationTime", &Ir::GetReverberationTime),
        Field<Ir>("dryGain", &Ir::GetDryGain),
        Field<Ir>("wetGain", &Ir::GetWetGain),
        Field<Ir>("delay", &Ir::GetDelay),
        Field<Ir>("noiseColor", &Ir::GetNoiseColor),
        Field<Ir>("slpfFrequency", &Ir::GetSlpfFrequency),
        Field<Ir>("fadeFunction", &Ir::GetFadeFunction),
        Field<Ir>("slpfFunction", &Ir::GetSlpfFunction),
    };
}

} // namespace Zorvan::CatalogDetail
