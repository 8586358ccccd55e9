#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Shake removal by a motion search: the search range on each axis and the fill of the edges
// that the correction uncovers. It keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectDeshake : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // The two ranges only: a change of the edge fill alone keeps the running stage.
    bool operator==(const SettingsEffectDeshake& other) const;

    // Plain setters, unchecked.
    void SetRange(std::int32_t x, std::int32_t y);
    void SetEdgeMode(std::int32_t value);

    std::int32_t GetRangeX() const;
    std::int32_t GetRangeY() const;
    std::int32_t GetEdgeMode() const;

private:
    std::int32_t rangeX = 0; // pixels; no search, no correction
    std::int32_t rangeY = 0;
    std::int32_t edgeMode = 0;
};

} // namespace Zorvan::Proc
