#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectOpenCV.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsAnalyzerVideoTrackObjectOpenCV::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsAnalyzerVideoTrackObjectOpenCV";

SettingsAnalyzerVideoTrackObjectOpenCV::~SettingsAnalyzerVideoTrackObjectOpenCV() = default;

const std::string& SettingsAnalyzerVideoTrackObjectOpenCV::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsAnalyzerVideoTrackObjectOpenCV::Clone() const
{
    return std::make_unique<SettingsAnalyzerVideoTrackObjectOpenCV>(*this);
}

void SettingsAnalyzerVideoTrackObjectOpenCV::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, {"algorithm"});
    if (const auto value = MapForm::Find<int>(map, "algorithm")) {
        if (*value < 0 || *value > 4) {
            ThrowSettings("Invalid algorithm value");
        }
        algorithm = static_cast<Algorithm>(*value);
    }
    SettingsAnalyzerVideoTrackObjectBase::Deserialize(options);
}

bool SettingsAnalyzerVideoTrackObjectOpenCV::operator==(const SettingsAnalyzerVideoTrackObjectOpenCV& other) const
{
    return begin == other.begin && rect.left == other.rect.left && rect.top == other.rect.top &&
           rect.width == other.rect.width && rect.height == other.rect.height && algorithm == other.algorithm;
}

bool SettingsAnalyzerVideoTrackObjectOpenCV::operator!=(const SettingsAnalyzerVideoTrackObjectOpenCV& other) const
{
    return !(*this == other);
}

void SettingsAnalyzerVideoTrackObjectOpenCV::SetAlgorithm(Algorithm value)
{
    algorithm = value;
}

SettingsAnalyzerVideoTrackObjectOpenCV::Algorithm SettingsAnalyzerVideoTrackObjectOpenCV::GetAlgorithm() const
{
    return algorithm;
}

} // namespace Zorvan::Proc
