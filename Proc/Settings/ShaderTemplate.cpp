#include "Proc/Settings/ShaderTemplate.h"

#include <fstream>
#include <sstream>

#include <glog/logging.h>

namespace Zorvan::Proc::ShaderTemplate {

void LoadShader(const std::string& path, std::string& shader)
{
    std::ifstream stream(path, std::ios::in | std::ios::binary);
    if (!stream.is_open()) {
        LOG(WARNING) << "Can't load shader from " << path;
        return;
    }
    std::ostringstream content;
    content << stream.rdbuf();
    shader = content.str();
}

} // namespace Zorvan::Proc::ShaderTemplate
