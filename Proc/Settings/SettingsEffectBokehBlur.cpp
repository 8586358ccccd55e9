#include "Proc/Settings/SettingsEffectBokehBlur.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

const std::string SettingsEffectBokehBlur::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectBokehBlur$$";

const std::string& SettingsEffectBokehBlur::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectBokehBlur::Clone() const
{
    return std::make_unique<SettingsEffectBokehBlur>(*this);
}

void SettingsEffectBokehBlur::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Stored straight into the fields, in key order.
    const auto map = GetOptionsMap(options, {"size", "exposure", "hdrborder", "intensity"});
    MapForm::Read(map, "size", size);
    MapForm::Read(map, "exposure", exposure);
    MapForm::Read(map, "hdrborder", hdrBorder);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectBokehBlur::SetParams(double newSize, double newExposure, double newHdrBorder)
{
    size = newSize;
    exposure = newExposure;
    hdrBorder = newHdrBorder;
}

void SettingsEffectBokehBlur::SetIntensity(float value)
{
    intensity = value;
}

void SettingsEffectBokehBlur::SetImage(const std::shared_ptr<const ImageHandler>& newImage)
{
    image = newImage ? newImage : std::make_shared<const ImageHandler>();
}

const std::shared_ptr<const ImageHandler>& SettingsEffectBokehBlur::GetImage() const
{
    return image;
}

double SettingsEffectBokehBlur::GetSize() const
{
    return size;
}

double SettingsEffectBokehBlur::GetExposure() const
{
    return exposure;
}

double SettingsEffectBokehBlur::GetHdrBorder() const
{
    return hdrBorder;
}

float SettingsEffectBokehBlur::GetIntensity() const
{
    return intensity;
}

} // namespace Zorvan::Proc
