#include "Proc/Settings/BaseSettingsISF.h"

#include <fstream>
#include <sstream>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

const std::string BaseSettingsISF::s_psShaderPath ZORVAN_INIT_STRINGS = "ps_shader_path";
const std::string BaseSettingsISF::s_vsShaderPath ZORVAN_INIT_STRINGS = "vs_shader_path";
const std::string BaseSettingsISF::s_configPath ZORVAN_INIT_STRINGS = "config_path";
const std::string BaseSettingsISF::s_errorMessage ZORVAN_INIT_STRINGS = "Invalid value";
const std::vector<std::string> BaseSettingsISF::s_params ZORVAN_INIT_PARAMS = {s_psShaderPath, s_vsShaderPath,
                                                                               s_configPath};

namespace {

// The whole content of the file, read as bytes; empty when the stream is not good after
// opening. Copied through `<< rdbuf()`, which turns a read error (a
// folder, say) into a short result instead of the exception libstdc++'s filebuf throws, so
// that an unreadable file ends in "Invalid value" as a missing one does.
std::string ReadFile(const std::string& path)
{
    std::ifstream stream(path, std::ios::in | std::ios::binary);
    if (!stream.good()) {
        return {};
    }
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

} // namespace

void BaseSettingsISF::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    const auto readFileInto = [&map](const std::string& key, std::string& field) {
        if (const std::string* path = MapForm::FindText(map, key)) {
            SetNewValue(ReadFile(Core::Utils::RemoveQuotes(*path)), s_errorMessage, field);
        }
    };
    // Read in the order vertex, pixel, configuration, unlike s_params: a file that fails leaves
    // the fields read before it replaced, and callers rely on which those are.
    readFileInto(s_vsShaderPath, vertexShader);
    readFileInto(s_psShaderPath, pixelShader);
    readFileInto(s_configPath, config);
}

void BaseSettingsISF::SetNewValue(const std::string& text, const std::string& message, std::string& field)
{
    if (text.empty()) {
        ThrowEffect(message);
    }
    field = text;
}

void BaseSettingsISF::SetVertexShader(const std::string& text)
{
    SetNewValue(text, "Invalid value for vertex shader data", vertexShader);
}

void BaseSettingsISF::SetPixelShader(const std::string& text)
{
    SetNewValue(text, "Invalid value for pixel shader data", pixelShader);
}

void BaseSettingsISF::SetConfig(const std::string& text)
{
    SetNewValue(text, "Invalid value for config data", config);
}

const std::string& BaseSettingsISF::GetVertexShader() const
{
    return vertexShader;
}

const std::string& BaseSettingsISF::GetPixelShader() const
{
    return pixelShader;
}

const std::string& BaseSettingsISF::GetConfig() const
{
    return config;
}

bool BaseSettingsISF::operator==(const BaseSettingsISF& other) const
{
    return vertexShader == other.vertexShader && pixelShader == other.pixelShader && config == other.config;
}

bool BaseSettingsISF::operator!=(const BaseSettingsISF& other) const
{
    return !(*this == other);
}

} // namespace Zorvan::Proc
