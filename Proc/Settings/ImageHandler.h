#pragma once
// ImageHandler, the opaque image holder of Zorvan::Proc.
#include <cstdint>
#include <vector>

#include "Proc/Settings/Export.h"

namespace Zorvan::Proc {

// An image that records hold by shared pointer to const and
// hand on to the renderer. The library never looks inside: the renderer owns the meaning
// of the content (pixel format, row layout). This holder keeps a width, a height and the
// pixel bytes as given, and checks nothing. Default-built, it is empty (0 by 0, no bytes).
// It has no comparison: records compare images by pointer.
class ZORVAN_SETTINGS_EXPORT ImageHandler {
public:
    ImageHandler();
    ImageHandler(std::uint32_t width, std::uint32_t height, std::vector<std::uint8_t> pixels);

    std::uint32_t GetWidth() const;
    std::uint32_t GetHeight() const;
    const std::vector<std::uint8_t>& GetPixels() const;
    // True when there are no pixel bytes.
    bool IsEmpty() const;

private:
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint8_t> pixels;
};

} // namespace Zorvan::Proc
