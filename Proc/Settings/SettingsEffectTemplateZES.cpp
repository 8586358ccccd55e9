#include "Proc/Settings/SettingsEffectTemplateZES.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ShaderTemplate.h"

namespace Zorvan::Proc {

const std::string SettingsEffectTemplateZES::CLASS_ID ZORVAN_INIT_STRINGS = "EffectTemplateZES";

// Built before any record can be constructed at load.
const std::set<int> SettingsEffectTemplateZES::s_supportedVersions ZORVAN_INIT_STRINGS = {0};

SettingsEffectTemplateZES::SettingsEffectTemplateZES()
    : version(*s_supportedVersions.rbegin())
    , intensity(ShaderTemplate::kIntensityNotSet)
{
}

SettingsEffectTemplateZES::SettingsEffectTemplateZES(int newVersion, const std::string& newShader,
                                                     const std::shared_ptr<const ImageHandler>& newImage,
                                                     float newIntensity)
    : shader(newShader)
    , image(newImage)
{
    SetVersion(newVersion);
    SetIntensity(newIntensity);
}

const std::string& SettingsEffectTemplateZES::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectTemplateZES::Clone() const
{
    return std::make_unique<SettingsEffectTemplateZES>(*this);
}

bool SettingsEffectTemplateZES::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectTemplateZES&>(other);
}

void SettingsEffectTemplateZES::Deserialize(const std::string& options)
{
    ShaderTemplate::Deserialize(*this, options);
}

bool SettingsEffectTemplateZES::operator==(const SettingsEffectTemplateZES& other) const
{
    return ShaderTemplate::Equal(*this, other);
}

void SettingsEffectTemplateZES::SetVersion(int value)
{
    version = ShaderTemplate::ChooseVersion(s_supportedVersions, value);
}

void SettingsEffectTemplateZES::SetIntensity(float value)
{
    intensity = ShaderTemplate::ChooseIntensity(value);
}

void SettingsEffectTemplateZES::SetShader(const std::string& text)
{
    shader = text;
}

void SettingsEffectTemplateZES::SetImage(const std::shared_ptr<const ImageHandler>& value)
{
    image = value;
}

void SettingsEffectTemplateZES::LoadShader(const std::string& path)
{
    ShaderTemplate::LoadShader(path, shader);
}

int SettingsEffectTemplateZES::GetVersion() const
{
    return version;
}

const std::string& SettingsEffectTemplateZES::GetShader() const
{
    return shader;
}

const std::shared_ptr<const ImageHandler>& SettingsEffectTemplateZES::GetImage() const
{
    return image;
}

float SettingsEffectTemplateZES::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
