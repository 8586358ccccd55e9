#pragma once
#include <memory>
#include <set>
#include <string>

#include "Proc/Settings/ImageHandler.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// An effect described by shader text, with an image for the shader and an intensity. Its twin
// SettingsTransitionTemplateZES has the same fields, rules and keys. Keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectTemplateZES : public Settings {
public:
    static const std::string CLASS_ID;

    // The newest supported version, no shader, no image, intensity not set (-1).
    SettingsEffectTemplateZES();
    // Copies the shader and the image, then applies the rules of SetVersion and SetIntensity.
    SettingsEffectTemplateZES(int version, const std::string& shader, const std::shared_ptr<const ImageHandler>& image,
                              float intensity);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Map form: "v" (std::stoi, through SetVersion), "s" (quoted text, the shader), "sf" (a
    // quoted path, through LoadShader, so a file replaces a text given beside it), "intensity"
    // (std::stof, through SetIntensity), in this order.
    void Deserialize(const std::string& options) override;

    // Version, shader and intensity exact; the image by pointer, not by content.
    bool operator==(const SettingsEffectTemplateZES& other) const;

    // A version that is not supported becomes the oldest supported one. No failure.
    void SetVersion(int value);
    // Exactly -1.0 stays (not set); anything else is clamped to 0.0..1.0.
    void SetIntensity(float value);
    void SetShader(const std::string& text);
    void SetImage(const std::shared_ptr<const ImageHandler>& value);
    // Reads the whole file into the shader. A file that cannot be opened writes the warning
    // "Can't load shader from " and the path to the log and leaves the shader as it was.
    void LoadShader(const std::string& path);

    int GetVersion() const;
    const std::string& GetShader() const;
    const std::shared_ptr<const ImageHandler>& GetImage() const;
    float GetIntensity() const;

private:
    // The shader versions the renderer supports: {0}.
    static const std::set<int> s_supportedVersions;

    int version;
    std::string shader;
    std::shared_ptr<const ImageHandler> image;
    float intensity;
};

} // namespace Zorvan::Proc
