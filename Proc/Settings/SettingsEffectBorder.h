#pragma once
#include <cstdint>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// A coloured border around the frame, its four widths either in pixels or, when `relative`
// is not 0, relative to the frame.
class ZORVAN_SETTINGS_EXPORT SettingsEffectBorder : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // The widths of the form in use: relative ones summing below 0.00001, or pixel ones all 0.
    bool IsEmpty() const override;

    // The same form; its widths (relative ones by a summed difference below 0.00001, pixel
    // ones exactly); then the colour as a whole word.
    bool operator==(const SettingsEffectBorder& other) const;

    // Each stores unchecked; the widths of the other form stay as they are.
    void SetRelative(std::int32_t value);
    void SetSizes(const CropInfo& value);
    void SetRelativeSizes(const CropInfoF& value);
    void SetColor(Color value);

    std::int32_t GetRelative() const;
    const CropInfo& GetSizes() const;
    const CropInfoF& GetRelativeSizes() const;
    Color GetColor() const;

private:
    std::int32_t relative = 0; // 0: widths in pixels
    CropInfo sizes;
    CropInfoF relativeSizes;
    Color color = 0xFF000000U; // opaque black
};

} // namespace Zorvan::Proc
