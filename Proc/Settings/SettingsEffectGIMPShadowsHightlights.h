#pragma once
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Shadows and highlights recovery as the image editor's tool has it: the two amounts with
// their colour corrections, the white point, the compression and an intensity. The setters
// clamp out-of-range values, while the option string refuses them with EffectException
// "Invalid value". The option keys are the static s_<role> strings.
class ZORVAN_SETTINGS_EXPORT SettingsEffectGIMPShadowsHightlights : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_shadows;                // "shadows"
    static const std::string s_shadowsColorCorrect;    // "shadows-correct"
    static const std::string s_highlights;             // "highlights"
    static const std::string s_highlightsColorCorrect; // "highlights-correct"
    static const std::string s_whitepoint;             // "whitepoint"
    static const std::string s_compress;               // "compress"
    static const std::string s_intensity;              // "intensity"
    // The seven keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Shadows near 0, shadows correct near 100, highlights near 0, highlights correct near 50,
    // whitepoint near 0 and compress near 50; or intensity near zero.
    bool IsEmpty() const override;
    // Map form over s_params: each key by std::stof, in the order of s_params; a value outside
    // the field's range, or not-a-number, throws EffectException "Invalid value".
    void Deserialize(const std::string& options) override;

    // Every field `nearly equal`.
    bool operator==(const SettingsEffectGIMPShadowsHightlights& other) const;
    bool operator!=(const SettingsEffectGIMPShadowsHightlights& other) const;

    // Each clamps and stores: shadows and highlights to -100..100, the two colour corrections
    // and compress to 0..100, whitepoint to -10..10, intensity to 0..1.
    void SetShadows(float value);
    void SetShadowsColorCorrect(float value);
    void SetHighlights(float value);
    void SetHighlightsColorCorrect(float value);
    void SetWhitepoint(float value);
    void SetCompress(float value);
    void SetIntensity(float value);

    float GetShadows() const;
    float GetShadowsColorCorrect() const;
    float GetHighlights() const;
    float GetHighlightsColorCorrect() const;
    float GetWhitepoint() const;
    float GetCompress() const;
    float GetIntensity() const;

private:
    // Neutral defaults: the values at which the stage changes nothing.
    float shadows = 0.0F;
    float shadowsColorCorrect = 100.0F;
    float highlights = 0.0F;
    float highlightsColorCorrect = 50.0F;
    float whitepoint = 0.0F;
    float compress = 50.0F;
    float intensity = 1.0F;
};

} // namespace Zorvan::Proc
