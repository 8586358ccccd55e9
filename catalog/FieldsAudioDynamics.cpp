#include "Proc/Settings/SettingsAudioCompressor.h"
#include "Proc/Settings/SettingsAudioGate.h"
#include "Proc/Settings/SettingsAudioNoiseGate.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsAudioDynamics(FieldMap& fields)
{
    using Proc::SettingsAudioCompressor;
    using Proc::SettingsAudioGate;
    using Proc::SettingsAudioNoiseGate;
    fields["SettingsAudioCompressor"] = {
        Field<SettingsAudioCompressor>("levelIn", &SettingsAudioCompressor::GetLevelIn),
        Field<SettingsAudioCompressor>("threshold", &SettingsAudioCompressor::GetThreshold),
        Field<SettingsAudioCompressor>("ratio", &SettingsAudioCompressor::GetRatio),
        Field<SettingsAudioCompressor>("attack", &SettingsAudioCompressor::GetAttack),
        Field<SettingsAudioCompressor>("release", &SettingsAudioCompressor::GetRelease),
        Field<SettingsAudioCompressor>("makeup", &SettingsAudioCompressor::GetMakeup),
        Field<SettingsAudioCompressor>("knee", &SettingsAudioCompressor::GetKnee),
        Field<SettingsAudioCompressor>("link", &SettingsAudioCompressor::GetLink),
        Field<SettingsAudioCompressor>("detection", &SettingsAudioCompressor::GetDetection),
        Field<SettingsAudioCompressor>("intensity", &SettingsAudioCompressor::GetIntensity),
    };
    fields["SettingsAudioGate"] = {
        Field<SettingsAudioGate>("levelIn", &SettingsAudioGate::GetLevelIn),
        Field<SettingsAudioGate>("rangeIntensity", &SettingsAudioGate::GetRangeIntensity),
        Field<SettingsAudioGate>("threshold", &SettingsAudioGate::GetThreshold),
        Field<SettingsAudioGate>("ratio", &SettingsAudioGate::GetRatio),
        Field<SettingsAudioGate>("attackMs", &SettingsAudioGate::GetAttackMs),
        Field<SettingsAudioGate>("releaseMs", &SettingsAudioGate::GetReleaseMs),
        Field<SettingsAudioGate>("makeup", &SettingsAudioGate::GetMakeup),
        Field<SettingsAudioGate>("knee", &SettingsAudioGate::GetKnee),
        Field<SettingsAudioGate>("detection", &SettingsAudioGate::GetDetection),
        Field<SettingsAudioGate>("link", &SettingsAudioGate::GetLink),
    };
    fields["SettingsAudioNoiseGate"] = {
        Field<SettingsAudioNoiseGate>("threshold", &SettingsAudioNoiseGate::GetThreshold),
        Field<SettingsAudioNoiseGate>("attack", &SettingsAudioNoiseGate::GetAttack),
        Field<SettingsAudioNoiseGate>("decay", &SettingsAudioNoiseGate::GetDecay),
        Field<SettingsAudioNoiseGate>("softKnee", &SettingsAudioNoiseGate::GetSoftKnee),
        Field<SettingsAudioNoiseGate>("intensity", &SettingsAudioNoiseGate::GetIntensity),
    };
}

} // namespace Zorvan::CatalogDetail
