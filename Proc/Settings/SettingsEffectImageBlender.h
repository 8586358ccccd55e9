#pragma once
#include "Proc/Settings/SettingsEffectColorBlender.h"

namespace Zorvan::Proc {

// Where and how an overlay image is blended into the frame: a colour blender whose intensity is
// the image's opacity. Reads, compares and empties itself as the colour blender does.
class ZORVAN_SETTINGS_EXPORT SettingsEffectImageBlender : public SettingsEffectColorBlender {
public:
    using BlendAlphaMode = SettingsEffectColorBlender::BlendMode;

    static const std::string CLASS_ID;

    // Position 0, 0, opacity 1.0, the normal mode, no base colour.
    SettingsEffectImageBlender() = default;
    // The colour blender's (x, y, intensity, mode): the intensity is an opacity in 0..1.
    using SettingsEffectColorBlender::SettingsEffectColorBlender;
    // The opacity in 0..255, divided by 255 in single precision; outside it:
    // std::invalid_argument "Invalid intensity value".
    SettingsEffectImageBlender(int x, int y, int opacity, BlendAlphaMode mode);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
};

} // namespace Zorvan::Proc
