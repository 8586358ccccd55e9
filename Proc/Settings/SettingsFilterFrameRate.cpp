#include "Proc/Settings/SettingsFilterFrameRate.h"

#include "Proc/Settings/InitOrder.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

const std::string SettingsFilterFrameRate::CLASS_ID ZORVAN_INIT_STRINGS = "$$VIDEO_FRAMERATE$$";

constinit const SettingsFilterFrameRate::Rational SettingsFilterFrameRate::MARK_USE_ORIGINAL_FRAMERATE{0, 1};
const std::string SettingsFilterFrameRate::IMPL_ADJUST ZORVAN_INIT_STRINGS = "ADJUST_IMPL";
const std::string SettingsFilterFrameRate::IMPL_FFMPEG_BLEND ZORVAN_INIT_STRINGS = "framerate";
const std::string SettingsFilterFrameRate::IMPL_FFMPEG_MOTION ZORVAN_INIT_STRINGS = "minterpolate";
// ImplNames lives in the ConfInt library, which this library links against, so the loader
// has initialised it before these copies are made.
const std::string SettingsFilterFrameRate::IMPL_DEFAULT = ImplNames::ZORVAN;
const std::string SettingsFilterFrameRate::IMPL_FFMPEG = ImplNames::FFMPEG;

SettingsFilterFrameRate::SettingsFilterFrameRate()
    : frameRate(MARK_USE_ORIGINAL_FRAMERATE)
    , implementationName(IMPL_FFMPEG_BLEND)
{
}

SettingsFilterFrameRate::SettingsFilterFrameRate(const Rational& rate)
    : frameRate(rate)
    , implementationName(IMPL_FFMPEG_BLEND)
{
}

SettingsFilterFrameRate::SettingsFilterFrameRate(const Rational& rate, const std::string& name)
    : frameRate(rate)
    , implementationName(name)
{
}

const std::string& SettingsFilterFrameRate::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterFrameRate::Clone() const
{
    return std::make_unique<SettingsFilterFrameRate>(*this);
}

bool SettingsFilterFrameRate::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterFrameRate&>(other);
}

bool SettingsFilterFrameRate::operator==(const SettingsFilterFrameRate& other) const
{
    return frameRate.numerator() == other.frameRate.numerator() &&
           frameRate.denominator() == other.frameRate.denominator();
}

void SettingsFilterFrameRate::SetFrameRate(const Rational& rate)
{
    frameRate = rate;
}

void SettingsFilterFrameRate::SetImplementationName(const std::string& name)
{
    implementationName = name;
}

const SettingsFilterFrameRate::Rational& SettingsFilterFrameRate::GetFrameRate() const
{
    return frameRate;
}

const std::string& SettingsFilterFrameRate::GetImplementationName() const
{
    return implementationName;
}

} // namespace Zorvan::Proc
