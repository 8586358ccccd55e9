#include "Proc/Settings/SettingsTransitionTemplateZES.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ShaderTemplate.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionTemplateZES::CLASS_ID ZORVAN_INIT_STRINGS = "TransitionTemplateZES";

// Built before any record can be constructed at load.
const std::set<int> SettingsTransitionTemplateZES::s_supportedVersions ZORVAN_INIT_STRINGS = {0};

SettingsTransitionTemplateZES::SettingsTransitionTemplateZES()
    : version(*s_supportedVersions.rbegin())
    , intensity(ShaderTemplate::kIntensityNotSet)
{
}

SettingsTransitionTemplateZES::SettingsTransitionTemplateZES(int newVersion, const std::string& newShader,
                                                             const std::shared_ptr<const ImageHandler>& newImage,
                                                             float newIntensity)
    : shader(newShader)
    , image(newImage)
{
    SetVersion(newVersion);
    SetIntensity(newIntensity);
}

const std::string& SettingsTransitionTemplateZES::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionTemplateZES::Clone() const
{
    return std::make_unique<SettingsTransitionTemplateZES>(*this);
}

bool SettingsTransitionTemplateZES::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsTransitionTemplateZES&>(other);
}

void SettingsTransitionTemplateZES::Deserialize(const std::string& options)
{
    ShaderTemplate::Deserialize(*this, options);
}

bool SettingsTransitionTemplateZES::operator==(const SettingsTransitionTemplateZES& other) const
{
    return ShaderTemplate::Equal(*this, other);
}

void SettingsTransitionTemplateZES::SetVersion(int value)
{
    version = ShaderTemplate::ChooseVersion(s_supportedVersions, value);
}

void SettingsTransitionTemplateZES::SetIntensity(float value)
{
    intensity = ShaderTemplate::ChooseIntensity(value);
}

void SettingsTransitionTemplateZES::SetShader(const std::string& text)
{
    shader = text;
}

void SettingsTransitionTemplateZES::SetImage(const std::shared_ptr<const ImageHandler>& value)
{
    image = value;
}

void SettingsTransitionTemplateZES::LoadShader(const std::string& path)
{
    ShaderTemplate::LoadShader(path, shader);
}

int SettingsTransitionTemplateZES::GetVersion() const
{
    return version;
}

const std::string& SettingsTransitionTemplateZES::GetShader() const
{
    return shader;
}

const std::shared_ptr<const ImageHandler>& SettingsTransitionTemplateZES::GetImage() const
{
    return image;
}

float SettingsTransitionTemplateZES::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
