#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The rectangle of the frame that is kept, in pixels: left and top the first column and row,
// right and bottom one past the last, as in CropInfo.
class ZORVAN_SETTINGS_EXPORT SettingsEffectCrop : public Settings {
public:
    static const std::string CLASS_ID;

    // All four 0.
    SettingsEffectCrop() = default;
    SettingsEffectCrop(unsigned left, unsigned right, unsigned top, unsigned bottom);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Always false, four zeros included: a crop always stays in the graph.
    bool IsEmpty() const override;

    // The four values, exactly.
    bool operator==(const SettingsEffectCrop& other) const;

    std::uint32_t GetLeft() const;
    std::uint32_t GetRight() const;
    std::uint32_t GetTop() const;
    std::uint32_t GetBottom() const;

private:
    std::uint32_t left = 0;
    std::uint32_t right = 0;
    std::uint32_t top = 0;
    std::uint32_t bottom = 0;
};

} // namespace Zorvan::Proc
