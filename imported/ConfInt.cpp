#include "imported/ConfInt.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zorvan::Conf {

namespace {

std::uint32_t SideOf(double extent, bool even)
{
    double side = std::ceil(extent - 1e-9);
    if (even) {
        side = 2.0 * std::ceil(side / 2.0);
    }
    if (!(side > 0.0)) {
        return 0;
    }
    if (side >= static_cast<double>(std::numeric_limits<std::uint32_t>::max())) {
        return std::numeric_limits<std::uint32_t>::max();
    }
    return static_cast<std::uint32_t>(side);
}

} // namespace

FrameInfo Transform2D::GetBoundingBox(const FrameInfo& frame, bool even) const
{
    const double width = frame.width;
    const double height = frame.height;
    const std::array<std::array<double, 2>, 4> corners{{{0.0, 0.0}, {width, 0.0}, {0.0, height}, {width, height}}};
    double minX = std::numeric_limits<double>::infinity();
    double minY = minX;
    double maxX = -minX;
    double maxY = -minX;
    for (const auto& [x, y] : corners) {
        double mappedX = x * m[0] + y * m[3] + m[6];
        double mappedY = x * m[1] + y * m[4] + m[7];
        const double w = x * m[2] + y * m[5] + m[8];
        if (w != 0.0 && w != 1.0) {
            mappedX /= w;
            mappedY /= w;
        }
        minX = std::min(minX, mappedX);
        maxX = std::max(maxX, mappedX);
        minY = std::min(minY, mappedY);
        maxY = std::max(maxY, mappedY);
    }
    return FrameInfo{SideOf(maxX - minX, even), SideOf(maxY - minY, even), frame.parNumerator, frame.parDenominator};
}

Core::Matrix3x3 DisplayMatrix::GetTransform() const
{
    constexpr double fixed16 = 65536.0;
    constexpr double fixed30 = 1073741824.0;
    Core::Matrix3x3 result;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isUvw = i == 2 || i == 5 || i == 8;
        result.m[i] = values[i] / (isUvw ? fixed30 : fixed16);
    }
    return result;
}

bool IsValidColorPrimaries(std::uint32_t primaries)
{
    return primaries == 1 || primaries == 2 || (primaries >= 4 && primaries <= 12) || primaries == 22;
}

bool IsValidTransferFunction(std::uint32_t transfer)
{
    return transfer == 1 || transfer == 2 || (transfer >= 4 && transfer <= 18);
}

bool IsValidYCbCrMatrix(std::uint32_t matrix)
{
    return matrix <= 2 || (matrix >= 4 && matrix <= 14);
}

const std::string IFormatFile::POSTFIX_ADDITIONAL_PARAMS = "??";
const std::string IFormatFile::POSTFIX_PARAMS_SEPARATOR = "&;";
const std::string IFormatFile::POSTFIX_VALUE_SEPARATOR = "=";
const std::string IFormatCodecSubtitle::SUBTITLE_ENCODING_PREFIX = "sub_charenc";
const std::string IFormatCodecAudio::CODEC_ID_AAC = "aac";
const std::string IFormatCodecAudio::CODEC_ID_AAC_LATM = "aac_latm";
const std::string IFormatCodecAudio::CODEC_ID_MP3 = "mp3";
const std::string IFormatCodecAudio::CODEC_ID_OPUS = "opus";
const std::string IFormatCodecVideo::CODEC_ID_H264 = "h264";
const std::string IFormatCodecVideo::CODEC_ID_H265 = "hevc";
const std::string IFormatCodecVideo::CODEC_ID_VP9 = "vp9";
const std::string IFormatCodecVideo::CODEC_ID_AV1 = "av1";

} // namespace Zorvan::Conf

namespace Zorvan::Proc {

const std::string ImplNames::ZORVAN = "zorvan";
const std::string ImplNames::FFMPEG = "ffmpeg";

} // namespace Zorvan::Proc
