#include "Proc/Settings/SettingsFilterAudioVolume.h"
#include "Proc/Settings/SettingsFilterBitStream.h"
#include "Proc/Settings/SettingsFilterBlurTransparentBorder.h"
#include "Proc/Settings/SettingsFilterDurationTrimmer.h"
#include "Proc/Settings/SettingsFilterFPSDoubler.h"
#include "Proc/Settings/SettingsFilterFrameRate.h"
#include "Proc/Settings/SettingsFilterIntroLoopOutro.h"
#include "Proc/Settings/SettingsFilterLoop.h"
#include "Proc/Settings/SettingsFilterSlowMotion.h"
#include "Proc/Settings/SettingsFilterSpeedUp.h"
#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"
#include "catalog/CatalogFields.h"
#include "catalog/JsonValues.h"

namespace Zorvan::CatalogDetail {

namespace {

nlohmann::json RateToJson(const boost::rational<std::int64_t>& rate)
{
    return nlohmann::json{{"numerator", rate.numerator()}, {"denominator", rate.denominator()}};
}

nlohmann::json RateToJson(const std::optional<Proc::SettingsFilterSpeedUpVideo::Rational>& rate)
{
    if (!rate) {
        return nullptr;
    }
    return RateToJson(*rate);
}

// The frame generator is a private base: its accessors are reached through the record's own
// using-declarations, so through lambdas rather than pointers to the base's members.
template <class C>
std::vector<SettingsCatalogField> FrameGeneratorFields()
{
    return {
        FieldJson<C>("modelInfo", [](const C& c) { return CatalogJson::FromModel(c.GetModelInfo()); }),
        FieldJson<C>("resizeMethod", [](const C& c) { return ToJsonValue(c.GetResizeMethod()); }),
        FieldJson<C>("resizePercents", [](const C& c) { return c.GetResizePercents(); }),
    };
}

} // namespace

void AddFieldsTimeFilters(FieldMap& fields)
{
    using Proc::SettingsFilterAudioVolume;
    using Proc::SettingsFilterBitStream;
    using Proc::SettingsFilterBlurTransparentBorder;
    using Proc::SettingsFilterDurationTrimmer;
    using Proc::SettingsFilterFrameRate;
    using Proc::SettingsFilterIntroLoopOutro;
    using Proc::SettingsFilterLoop;
    using Proc::SettingsFilterSpeedUp;
    using Proc::SettingsFilterSpeedUpVideo;
    fields["SettingsFilterSpeedUp"] = {
        Field<SettingsFilterSpeedUp>("speedFactor", &SettingsFilterSpeedUp::GetSpeedFactor),
    };
    fields["SettingsFilterSpeedUpVideo"] = {
        Field<SettingsFilterSpeedUpVideo>("speedFactor", &SettingsFilterSpeedUpVideo::GetSpeedFactor),
        FieldJson<SettingsFilterSpeedUpVideo>(
            "constantFPS", [](const SettingsFilterSpeedUpVideo& c) { return RateToJson(c.GetConstantFPS()); }),
        Field<SettingsFilterSpeedUpVideo>("useSeek", &SettingsFilterSpeedUpVideo::IsUseSeek),
    };
    fields["SettingsFilterAudioVolume"] = {
        Field<SettingsFilterAudioVolume>("linearGain", &SettingsFilterAudioVolume::GetLinearGain),
        Field<SettingsFilterAudioVolume>("boolean", &SettingsFilterAudioVolume::GetBoolean),
    };
    fields["SettingsFilterBitStream"] = {
        Field<SettingsFilterBitStream>("streamFormatNeeded", &SettingsFilterBitStream::GetStreamFormatNeeded),
    };
    fields["SettingsFilterBlurTransparentBorder"] = {
        Field<SettingsFilterBlurTransparentBorder>("matrixSize", &SettingsFilterBlurTransparentBorder::GetMatrixSize),
    };
    fields["SettingsFilterDurationTrimmer"] = {
        Field<SettingsFilterDurationTrimmer>("duration", &SettingsFilterDurationTrimmer::GetDuration),
        Field<SettingsFilterDurationTrimmer>("boolean", &SettingsFilterDurationTrimmer::GetBoolean),
    };
    fields["SettingsFilterFrameRate"] = {
        FieldJson<SettingsFilterFrameRate>(
            "frameRate", [](const SettingsFilterFrameRate& c) { return RateToJson(c.GetFrameRate()); }),
        Field<SettingsFilterFrameRate>("implementationName", &SettingsFilterFrameRate::GetImplementationName),
    };
    fields["SettingsFilterIntroLoopOutro"] = {
        Field<SettingsFilterIntroLoopOutro>("duration", &SettingsFilterIntroLoopOutro::GetDuration),
        Field<SettingsFilterIntroLoopOutro>("intro", &SettingsFilterIntroLoopOutro::GetIntro),
        Field<SettingsFilterIntroLoopOutro>("outro", &SettingsFilterIntroLoopOutro::GetOutro),
        Field<SettingsFilterIntroLoopOutro>("loopMinCount", &SettingsFilterIntroLoopOutro::GetLoopMinCount),
    };
    fields["SettingsFilterLoop"] = {
        Field<SettingsFilterLoop>("duration", &SettingsFilterLoop::GetDuration),
    };
    fields["SettingsFilterFPSDoubler"] = FrameGeneratorFields<Proc::SettingsFilterFPSDoubler>();
    fields["SettingsFilterSlowMotion"] = FrameGeneratorFields<Proc::SettingsFilterSlowMotion>();
}

} // namespace Zorvan::CatalogDetail
