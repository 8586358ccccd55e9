#include "Proc/Settings/SettingsEffectRetroArtefacts.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectRetroArtefacts::CLASS_ID ZORVAN_INIT_STRINGS = "$$Effect_Retro_Artefacts$$";

const std::string& SettingsEffectRetroArtefacts::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectRetroArtefacts::Clone() const
{
    return std::make_unique<SettingsEffectRetroArtefacts>(*this);
}

bool SettingsEffectRetroArtefacts::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectRetroArtefacts&>(other);
}

void SettingsEffectRetroArtefacts::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"shake", "vignetting", "grain", "scratches", "rollerTrack", "intensity"});
    MapForm::ReadExactlyOne(map, "shake", shake);           // 2 means false, kept for saved presets
    MapForm::ReadExactlyOne(map, "vignetting", vignetting); // 2 means false, kept for saved presets
    MapForm::Read(map, "grain", grain);
    MapForm::Read(map, "scratches", scratches);
    MapForm::Read(map, "rollerTrack", rollerTrack);
    MapForm::Read(map, "intensity", intensity);
}

bool SettingsEffectRetroArtefacts::operator==(const SettingsEffectRetroArtefacts& other) const
{
    return shake == other.shake && vignetting == other.vignetting && grain == other.grain &&
           scratches == other.scratches && rollerTrack == other.rollerTrack && intensity == other.intensity;
}

void SettingsEffectRetroArtefacts::SetShake(bool value)
{
    shake = value;
}

void SettingsEffectRetroArtefacts::SetVignetting(bool value)
{
    vignetting = value;
}

void SettingsEffectRetroArtefacts::SetGrain(int value)
{
    grain = value;
}

void SettingsEffectRetroArtefacts::SetScratches(int value)
{
    scratches = value;
}

void SettingsEffectRetroArtefacts::SetRollerTrack(int value)
{
    rollerTrack = value;
}

void SettingsEffectRetroArtefacts::SetIntensity(float value)
{
    intensity = value;
}

bool SettingsEffectRetroArtefacts::GetShake() const
{
    return shake;
}

bool SettingsEffectRetroArtefacts::GetVignetting() const
{
    return vignetting;
}

int SettingsEffectRetroArtefacts::GetGrain() const
{
    return grain;
}

int SettingsEffectRetroArtefacts::GetScratches() const
{
    return scratches;
}

int SettingsEffectRetroArtefacts::GetRollerTrack() const
{
    return rollerTrack;
}

float SettingsEffectRetroArtefacts::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
