#pragma once
// What the two shader-template records (effect and transition) share: the rules of their
// version and intensity, the loading of a shader file, their option keys and their
// comparison. Internal to the library's sources: not installed with the public headers (see
// CMakeLists.txt). Each record keeps its own fields and its own set of versions and calls these.
#include <set>
#include <string>

#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"
#include "Proc/Settings/Settings.h"
#include "imported/Utils.h"

namespace Zorvan::Proc::ShaderTemplate {

// The intensity of a record that leaves it to the shader.
inline constexpr float kIntensityNotSet = -1.0F;

// The version when it is supported, else the oldest supported one, so that a project saved by
// a newer editor still renders. `supported` is never empty.
inline int ChooseVersion(const std::set<int>& supported, int version)
{
    return supported.count(version) != 0 ? version : *supported.begin();
}

// Exactly -1 stays "not set"; anything else is held to 0..1.
inline float ChooseIntensity(float intensity)
{
    return intensity == kIntensityNotSet ? intensity : Saturate(intensity, 0.0F, 1.0F);
}

// The whole file, as bytes, into `shader`. A file that cannot be opened leaves `shader` as it
// was and writes one warning line, so that a project whose shader is missing still loads.
void LoadShader(const std::string& path, std::string& shader);

// "v", "s", "sf", "intensity", in this order, through the record's own rules.
template <class R>
void Deserialize(R& record, const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = Settings::GetOptionsMap(options, {"v", "s", "sf", "intensity"});
    if (const auto version = MapForm::Find<int>(map, "v")) {
        record.SetVersion(*version);
    }
    if (const std::string* text = MapForm::FindText(map, "s")) {
        record.SetShader(Core::Utils::RemoveQuotes(*text));
    }
    // Read after "s": a shader file replaces a text given beside it.
    if (const std::string* path = MapForm::FindText(map, "sf")) {
        record.LoadShader(Core::Utils::RemoveQuotes(*path));
    }
    if (const auto intensity = MapForm::Find<float>(map, "intensity")) {
        record.SetIntensity(*intensity);
    }
}

// Version, shader text and intensity exact, and the very same image object: the stage holds
// the image it was given, so another object with equal pixels still counts as a change.
template <class R>
bool Equal(const R& a, const R& b)
{
    return a.GetVersion() == b.GetVersion() && a.GetShader() == b.GetShader() && a.GetIntensity() == b.GetIntensity() &&
           a.GetImage() == b.GetImage();
}

} // namespace Zorvan::Proc::ShaderTemplate
