#pragma once
#include <memory>

#include "Proc/Settings/ImageHandler.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Bokeh blur: size, exposure, HDR border, an intensity and an optional image. Keeps the
// base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectBokehBlur : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetParams(double size, double exposure, double hdrBorder);
    void SetIntensity(float intensity);
    // An empty pointer is replaced by a new default ImageHandler: never empty afterwards.
    void SetImage(const std::shared_ptr<const ImageHandler>& image);
    const std::shared_ptr<const ImageHandler>& GetImage() const;

    double GetSize() const;
    double GetExposure() const;
    double GetHdrBorder() const;
    float GetIntensity() const;

private:
    // Neutral defaults: all 0, the stage changes nothing.
    double size = 0.0;
    double exposure = 0.0;
    double hdrBorder = 0.0;
    std::shared_ptr<const ImageHandler> image; // no image until SetImage
    float intensity = 0.0F;
};

} // namespace Zorvan::Proc
