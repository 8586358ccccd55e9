#include "Proc/Settings/SettingsPixelFormatConverter.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsPixelFormatConverter::CLASS_ID ZORVAN_INIT_STRINGS = "PixelFormatConverter";

const std::string& SettingsPixelFormatConverter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsPixelFormatConverter::Clone() const
{
    return std::make_unique<SettingsPixelFormatConverter>(*this);
}

bool SettingsPixelFormatConverter::operator==(const SettingsPixelFormatConverter& other) const
{
    return pixelFormats == other.pixelFormats && padRed == other.padRed && padGreen == other.padGreen &&
           padBlue == other.padBlue && reservedByte == other.reservedByte;
}

const std::vector<std::int32_t>& SettingsPixelFormatConverter::GetPixelFormats() const
{
    return pixelFormats;
}

void SettingsPixelFormatConverter::SetPixelFormats(const std::vector<std::int32_t>& formats)
{
    pixelFormats = formats;
}

std::uint8_t SettingsPixelFormatConverter::GetReservedByte() const
{
    return reservedByte;
}

void SettingsPixelFormatConverter::SetReservedByte(std::uint8_t value)
{
    reservedByte = value;
}

std::array<std::uint8_t, 3> SettingsPixelFormatConverter::GetPadColor() const
{
    return {padRed, padGreen, padBlue};
}

void SettingsPixelFormatConverter::SetPadColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    padRed = red;
    padGreen = green;
    padBlue = blue;
}

} // namespace Zorvan::Proc
