#include "Proc/Settings/SettingsAnalyzerSilenceDetector.h"

#include <cstdint>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerSilenceDetector::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsAnalyzerSilenceDetector";

SettingsAnalyzerSilenceDetector::Result::~Result() = default;

void SettingsAnalyzerSilenceDetector::Result::AddSilenceInterval(long long begin, long long end)
{
    intervals.emplace_back(begin / 1000, end / 1000);
}

const std::vector<SettingsAnalyzerSilenceDetector::Result::SilenceInterval>&
SettingsAnalyzerSilenceDetector::Result::GetResult() const
{
    return intervals;
}

SettingsAnalyzerSilenceDetector::~SettingsAnalyzerSilenceDetector() = default;

const std::string& SettingsAnalyzerSilenceDetector::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerSilenceDetector::Clone() const
{
    return std::make_unique<SettingsAnalyzerSilenceDetector>(*this);
}

void SettingsAnalyzerSilenceDetector::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    if (const auto value = GetOption<float>(options, "threshold", "")) {
        SetThreshold(*value);
    }
    if (const auto milliseconds = GetOption<int>(options, "minSilenceDuration", "")) {
        SetMinSilenceDuration(*milliseconds);
    }
}

void SettingsAnalyzerSilenceDetector::SetThreshold(float value)
{
    if (!(value >= 0.0F && value <= 1.0F)) {
        ThrowSettings("Invalid threshold! Should be in range from 0.0 to 1.0");
    }
    threshold = value;
}

void SettingsAnalyzerSilenceDetector::SetMinSilenceDuration(avTime milliseconds)
{
    if (milliseconds < 100) {
        ThrowSettings("Invalid minimum silence duration. Should be more than 100ms");
    }
    // In unsigned arithmetic: a count beyond the range of microseconds wraps instead of overflowing.
    minSilenceDuration = static_cast<avTime>(static_cast<std::uint64_t>(milliseconds) * 1000U);
}

float SettingsAnalyzerSilenceDetector::GetThreshold() const
{
    return threshold;
}

avTime SettingsAnalyzerSilenceDetector::GetMinSilenceDuration() const
{
    return minSilenceDuration;
}

} // namespace Zorvan::Proc
