#pragma once
#include <array>
#include <cstdint>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The pixel formats a conversion stage may produce, in the order of preference, and the
// colour it pads with.
class ZORVAN_SETTINGS_EXPORT SettingsPixelFormatConverter : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // The same formats in another order are another preference, hence unequal.
    bool operator==(const SettingsPixelFormatConverter& other) const;

    const std::vector<std::int32_t>& GetPixelFormats() const;
    void SetPixelFormats(const std::vector<std::int32_t>& formats);
    std::uint8_t GetReservedByte() const;
    void SetReservedByte(std::uint8_t value);
    // Red, green, blue.
    std::array<std::uint8_t, 3> GetPadColor() const;
    void SetPadColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

private:
    std::vector<std::int32_t> pixelFormats; // empty: any format
    std::uint8_t reservedByte = 0;          // read by the conversion stage only
    std::uint8_t padRed = 0;                // black padding
    std::uint8_t padGreen = 0;
    std::uint8_t padBlue = 0;
};

} // namespace Zorvan::Proc
