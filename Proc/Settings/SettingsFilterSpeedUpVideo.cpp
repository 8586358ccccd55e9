#include "Proc/Settings/SettingsFilterSpeedUpVideo.h"

#include <string>

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterSpeedUpVideo::CLASS_ID ZORVAN_INIT_STRINGS = "FilterSpeedUpVideo";

const std::string& SettingsFilterSpeedUpVideo::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterSpeedUpVideo::Clone() const
{
    return std::make_unique<SettingsFilterSpeedUpVideo>(*this);
}

bool SettingsFilterSpeedUpVideo::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterSpeedUpVideo&>(other);
}

bool SettingsFilterSpeedUpVideo::IsEmpty() const
{
    return NearlyEqual(GetSpeedFactor(), 1.0) && !constantFPS && !useSeek;
}

void SettingsFilterSpeedUpVideo::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    SettingsFilterSpeedUp::Deserialize(options);
    const std::string_view fps = OptionRegexSearch(options, "fps", "");
    if (const auto slash = fps.find('/'); slash != std::string_view::npos) {
        const std::int64_t numerator = std::stoll(std::string(fps.substr(0, slash)), nullptr, 10);
        const std::int64_t denominator = std::stoll(std::string(fps.substr(slash + 1)), nullptr, 10);
        constantFPS = Rational(numerator, denominator);
    }
    if (const auto seek = GetOption<bool>(options, "useSeek", "")) {
        useSeek = *seek;
    }
}

bool SettingsFilterSpeedUpVideo::operator==(const SettingsFilterSpeedUpVideo& other) const
{
    const bool sameRate = constantFPS.has_value() == other.constantFPS.has_value() &&
                          (!constantFPS || (constantFPS->numerator() == other.constantFPS->numerator() &&
                                            constantFPS->denominator() == other.constantFPS->denominator()));
    return GetSpeedFactor() == other.GetSpeedFactor() && sameRate && useSeek == other.useSeek;
}

bool SettingsFilterSpeedUpVideo::operator!=(const SettingsFilterSpeedUpVideo& other) const
{
    return !(*this == other);
}

void SettingsFilterSpeedUpVideo::SetConstantFPS(const Rational& rate)
{
    constantFPS = rate;
}

const std::optional<SettingsFilterSpeedUpVideo::Rational>& SettingsFilterSpeedUpVideo::GetConstantFPS() const
{
    return constantFPS;
}

void SettingsFilterSpeedUpVideo::UseSeek(bool value)
{
    useSeek = value;
}

bool SettingsFilterSpeedUpVideo::IsUseSeek() const
{
    return useSeek;
}

} // namespace Zorvan::Proc
