#pragma once
// The base of effects and transitions described by shader text, and the shape of the
// static key lists (s_<role>, s_params).
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Abstract: GetClassId and Clone are left to the derived classes. Overrides only
// Deserialize, so IsEqualTo throws and IsEmpty is false, as in the base. The fields hold the
// shader and configuration texts themselves, not their paths.
class ZORVAN_SETTINGS_EXPORT BaseSettingsISF : public Settings {
public:
    static const std::string s_psShaderPath; // "ps_shader_path"
    static const std::string s_vsShaderPath; // "vs_shader_path"
    static const std::string s_configPath;   // "config_path"
    // The three keys in this order, built at library load after the strings.
    static const std::vector<std::string> s_params;

    // Reads "vs_shader_path", "ps_shader_path", "config_path" (this order, not that of
    // s_params): each present value is a quoted file path whose whole content replaces the
    // field. A missing, unreadable or empty file throws EffectException "Invalid value";
    // fields read earlier in the call keep their new text.
    void Deserialize(const std::string& options) override;

    // Empty text throws EffectException ("Invalid value for vertex shader data", "... pixel
    // shader data", "Invalid value for config data") and leaves the field.
    void SetVertexShader(const std::string& text);
    void SetPixelShader(const std::string& text);
    void SetConfig(const std::string& text);
    const std::string& GetVertexShader() const;
    const std::string& GetPixelShader() const;
    const std::string& GetConfig() const;

    // The three texts byte by byte, vertex shader, pixel shader, configuration.
    bool operator==(const BaseSettingsISF& other) const;
    bool operator!=(const BaseSettingsISF& other) const;

protected:
    BaseSettingsISF() = default;
    BaseSettingsISF(const BaseSettingsISF&) = default;
    BaseSettingsISF& operator=(const BaseSettingsISF&) = default;

private:
    // The message of every failure on the Deserialize road: "Invalid value".
    static const std::string s_errorMessage;

    // Assigns a non-empty text to the field; an empty one throws EffectException with the
    // message (form A) and leaves the field.
    static void SetNewValue(const std::string& text, const std::string& message, std::string& field);

    std::string vertexShader;
    std::string pixelShader;
    std::string config;
};

} // namespace Zorvan::Proc
