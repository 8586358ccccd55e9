#include "Proc/Settings/SettingsAnalyzerAudioDetectShift.h"
#include "Proc/Settings/SettingsAnalyzerSilenceDetector.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsAudioAnalyzers(FieldMap& fields)
{
    using Proc::SettingsAnalyzerAudioDetectShift;
    using Proc::SettingsAnalyzerSilenceDetector;
    fields["SettingsAnalyzerAudioDetectShift"] = {
        Field<SettingsAnalyzerAudioDetectShift>("sampleRate", &SettingsAnalyzerAudioDetectShift::GetSampleRate),
        Field<SettingsAnalyzerAudioDetectShift>("window", &SettingsAnalyzerAudioDetectShift::GetWindow),
        Field<SettingsAnalyzerAudioDetectShift>("patternStep", &SettingsAnalyzerAudioDetectShift::GetPatternStep),
    };
    fields["SettingsAnalyzerSilenceDetector"] = {
        Field<SettingsAnalyzerSilenceDetector>("threshold", &SettingsAnalyzerSilenceDetector::GetThreshold),
        Field<SettingsAnalyzerSilenceDetector>("minSilenceDuration",
                                               &SettingsAnalyzerSilenceDetector::GetMinSilenceDuration),
    };
}

} // namespace Zorvan::CatalogDetail
