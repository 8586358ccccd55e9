#include "Proc/Settings/SettingsEffectAim.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsEffectAim::CLASS_ID ZORVAN_INIT_STRINGS = "EffectAim";

SettingsEffectAim::SettingsEffectAim()
    : bboxStream(std::make_shared<const Result>())
{
}

const std::string& SettingsEffectAim::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectAim::Clone() const
{
    return std::make_unique<SettingsEffectAim>(*this);
}

bool SettingsEffectAim::IsEmpty() const
{
    return bboxStream->GetResult().empty();
}

void SettingsEffectAim::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"type", "thickness", "crossLen", "radius"});
    if (const auto value = MapForm::Find<int>(map, "type")) {
        if (*value != 0 && *value != 1) {
            ThrowSettings("Invalid type value");
        }
        type = static_cast<Type>(*value);
    }
    MapForm::Read(map, "thickness", thickness);
    MapForm::Read(map, "crossLen", crossLen);
    MapForm::Read(map, "radius", radius);
}

void SettingsEffectAim::SetBBoxStream(const std::shared_ptr<const Result>& stream)
{
    bboxStream = stream;
}

const std::shared_ptr<const SettingsEffectAim::Result>& SettingsEffectAim::GetBBoxStream() const
{
    return bboxStream;
}

void SettingsEffectAim::SetType(Type value)
{
    type = value;
}

SettingsEffectAim::Type SettingsEffectAim::GetType() const
{
    return type;
}

void SettingsEffectAim::SetThickness(float value)
{
    thickness = value;
}

float SettingsEffectAim::GetThickness() const
{
    return thickness;
}

void SettingsEffectAim::SetCrossLen(float value)
{
    crossLen = value;
}

float SettingsEffectAim::GetCrossLen() const
{
    return crossLen;
}

void SettingsEffectAim::SetRadius(float value)
{
    radius = value;
}

float SettingsEffectAim::GetRadius() const
{
    return radius;
}

} // namespace Zorvan::Proc
