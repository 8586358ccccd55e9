#include "Proc/Settings/SettingsEffectChromakey.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectChromakey::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Chromakey$$";

const std::string& SettingsEffectChromakey::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectChromakey::Clone() const
{
    return std::make_unique<SettingsEffectChromakey>(*this);
}

void SettingsEffectChromakey::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"angle", "noise", "harshness", "transparency", "r", "g", "b"});
    // Read into copies and written back together, so a bad value leaves the whole key as it was.
    int newAngle = angle;
    double newNoise = noise;
    double newHarshness = harshness;
    double newTransparency = transparency;
    Color newKeyColor = keyColor;
    MapForm::Read(map, "angle", newAngle);
    // Read as float and widened, unlike the colour-select record's doubles.
    if (const auto value = MapForm::Find<float>(map, "noise")) {
        newNoise = *value;
    }
    if (const auto value = MapForm::Find<float>(map, "harshness")) {
        newHarshness = *value;
    }
    if (const auto value = MapForm::Find<float>(map, "transparency")) {
        newTransparency = *value;
    }
    const auto readByte = [&map, &newKeyColor](const char* key, unsigned shift) {
        if (const auto value = MapForm::Find<unsigned long long>(map, key)) {
            newKeyColor = (newKeyColor & ~(0xFFU << shift)) | ((static_cast<Color>(*value) & 0xFFU) << shift);
        }
    };
    readByte("r", 0U);
    readByte("g", 8U);
    readByte("b", 16U);
    angle = newAngle;
    noise = newNoise;
    harshness = newHarshness;
    transparency = newTransparency;
    keyColor = newKeyColor;
}

void SettingsEffectChromakey::SetParams(int newAngle, double newNoise, double newHarshness, double newTransparency)
{
    angle = newAngle;
    noise = newNoise;
    harshness = newHarshness;
    transparency = newTransparency;
}

int SettingsEffectChromakey::GetAngle() const
{
    return angle;
}

double SettingsEffectChromakey::GetNoise() const
{
    return noise;
}

double SettingsEffectChromakey::GetHarshness() const
{
    return harshness;
}

double SettingsEffectChromakey::GetTransparency() const
{
    return transparency;
}

Color SettingsEffectChromakey::GetKeyColor() const
{
    return keyColor;
}

} // namespace Zorvan::Proc
