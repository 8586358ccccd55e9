#include "Proc/Settings/ImageHandler.h"

#include <utility>

namespace Zorvan::Proc {

ImageHandler::ImageHandler() = default;

ImageHandler::ImageHandler(std::uint32_t width, std::uint32_t height, std::vector<std::uint8_t> pixels)
    : width(width)
    , height(height)
    , pixels(std::move(pixels))
{
}

std::uint32_t ImageHandler::GetWidth() const
{
    return width;
}

std::uint32_t ImageHandler::GetHeight() const
{
    return height;
}

const std::vector<std::uint8_t>& ImageHandler::GetPixels() const
{
    return pixels;
}

bool ImageHandler::IsEmpty() const
{
    return pixels.empty();
}

} // namespace Zorvan::Proc
