#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

// How a colour conversion treats light: the enumerations the converter stage reads.
struct ColorConversionInfo {
    enum class LinearMode : std::int32_t {
        SceneReferred = 0,   // "sceneReffered"
        DisplayReferred = 1, // "displayReffered"
        Rec709A = 2,         // "Rec709_A", "BT709_A"
    };
    enum class ToneMapping : std::int32_t {
        None = 0,   // "none"
        Direct = 1, // "direct"
        Enable = 2, // "enable"
    };
};

// The colour space a picture is converted to, and how linear light and tone mapping are
// handled on the way.
class ZORVAN_SETTINGS_EXPORT SettingsColorSpaceConverter : public Settings {
public:
    static const std::string CLASS_ID;

    SettingsColorSpaceConverter() = default;
    explicit SettingsColorSpaceConverter(const Conf::ColorSpace& destination);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // A non-empty string must name "colorSpace"; unknown words throw EffectException.
    void Deserialize(const std::string& options) override;

    bool operator==(const SettingsColorSpaceConverter& other) const;

    const Conf::ColorSpace& GetDestinationColorSpace() const;
    void SetDestinationColorSpace(const Conf::ColorSpace& colorSpace);
    ColorConversionInfo::LinearMode GetLinearMode() const;
    void SetLinearMode(ColorConversionInfo::LinearMode mode);
    ColorConversionInfo::ToneMapping GetToneMapping() const;
    void SetToneMapping(ColorConversionInfo::ToneMapping mapping);

private:
    Conf::ColorSpace destinationColorSpace;
    ColorConversionInfo::LinearMode linearMode = ColorConversionInfo::LinearMode::DisplayReferred;
    ColorConversionInfo::ToneMapping toneMapping = ColorConversionInfo::ToneMapping::Direct;
};

} // namespace Zorvan::Proc
