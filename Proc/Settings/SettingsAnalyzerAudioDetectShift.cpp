#include "Proc/Settings/SettingsAnalyzerAudioDetectShift.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerAudioDetectShift::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAnalyzerAudioDetectShift";

SettingsAnalyzerAudioDetectShift::Result::Result(long long shift, double score)
    : shift(shift)
    , score(score)
{
}

SettingsAnalyzerAudioDetectShift::Result::~Result() = default;

long long SettingsAnalyzerAudioDetectShift::Result::GetShift() const
{
    return shift;
}

double SettingsAnalyzerAudioDetectShift::Result::GetScore() const
{
    return score;
}

SettingsAnalyzerAudioDetectShift::~SettingsAnalyzerAudioDetectShift() = default;

const std::string& SettingsAnalyzerAudioDetectShift::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerAudioDetectShift::Clone() const
{
    return std::make_unique<SettingsAnalyzerAudioDetectShift>(*this);
}

void SettingsAnalyzerAudioDetectShift::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"sampleRate", "window", "patternStep"});
    if (const auto rate = MapForm::Find<int>(map, "sampleRate")) {
        SetSampleRate(*rate);
    }
    // std::stoull: a negative number wraps to a large value, which the setter accepts.
    if (const auto seconds = MapForm::Find<unsigned long>(map, "window")) {
        SetWindow(*seconds);
    }
    if (const auto seconds = MapForm::Find<unsigned long>(map, "patternStep")) {
        SetPatternStep(*seconds);
    }
}

void SettingsAnalyzerAudioDetectShift::SetSampleRate(int rate)
{
    if (rate <= 0) {
        ThrowSettings("Invalid sample rate");
    }
    sampleRate = rate;
}

void SettingsAnalyzerAudioDetectShift::SetWindow(unsigned long seconds)
{
    if (seconds < MIN_WINDOW_SEC) {
        ThrowSettings("Invalid window (less than " + std::to_string(MIN_WINDOW_SEC) + " sec)");
    }
    window = seconds;
}

void SettingsAnalyzerAudioDetectShift::SetPatternStep(unsigned long seconds)
{
    if (seconds < MIN_PATTERN_STEP_SEC) {
        ThrowSettings("Invalid pattern step (less than " + std::to_string(MIN_PATTERN_STEP_SEC) + " sec)");
    }
    patternStep = seconds;
}

int SettingsAnalyzerAudioDetectShift::GetSampleRate() const
{
    return sampleRate;
}

unsigned long SettingsAnalyzerAudioDetectShift::GetWindow() const
{
    return window;
}

unsigned long SettingsAnalyzerAudioDetectShift::GetPatternStep() const
{
    return patternStep;
}

} // namespace Zorvan::Proc
