#include "Proc/Settings/SettingsAnalyzerSpeechToText.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsSpeechToText(FieldMap& fields)
{
    using C = Proc::SettingsAnalyzerSpeechToText;
    fields["SettingsAnalyzerSpeechToText"] = {
        Field<C>("fileModelPath", &C::GetFileModelPath),
        Field<C>("language", &C::GetLanguage),
        Field<C>("threadCount", &C::GetThreadCount),
        Field<C>("bufferDuration", &C::GetBufferDuration),
        Field<C>("samplingStrategy", &C::GetSamplingStrategy),
        Field<C>("singleSegmentOutputForcing", &C::GetSingleSegmentOutputForcing),
        Field<C>("maxSegmentLength", &C::GetMaxSegmentLength),
        Field<C>("splitOnWord", &C::GetSplitOnWord),
        Field<C>("translatingToEnglish", &C::GetTranslatingToEnglish),
        Field<C>("beginSilenceThreshold", &C::GetBeginSilenceThreshold),
        Field<C>("endSilenceThreshold", &C::GetEndSilenceThreshold),
    };
}

} // namespace Zorvan::CatalogDetail
