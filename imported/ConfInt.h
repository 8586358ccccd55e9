#pragma once
// Stand-in for the sibling library ConfInt: frames, colour spaces, geometry and format names.
// The shapes follow shared/CONVENTIONS.md; every constant text here is this project's choice.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "imported/Export.h"
#include "imported/Utils.h"

namespace Zorvan::Conf {

// A frame: width, height and the pixel aspect as numerator and denominator.
struct ZORVAN_IMPORTED_EXPORT FrameInfo {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t parNumerator = 1;
    std::uint32_t parDenominator = 1;

    bool operator==(const FrameInfo&) const = default;
};

// A 2D transform of row vectors, as Core::Matrix3x3: x' = x m0 + y m3 + m6,
// y' = x m1 + y m4 + m7, w' = x m2 + y m5 + m8.
struct ZORVAN_IMPORTED_EXPORT Transform2D {
    std::array<double, 9> m{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};

    // The frame that bounds the frame rectangle (0, 0)-(width, height) under this
    // transform: the four corners are mapped (divided by w' when w' is neither 0 nor 1),
    // the size is the extent of the mapped corners rounded up to whole pixels (a tiny
    // excess of 1e-9 is forgiven), and with `even` each side is rounded up to an even
    // number. The pixel aspect is the frame's. Sides beyond 32 bits saturate.
    FrameInfo GetBoundingBox(const FrameInfo& frame, bool even) const;

    bool operator==(const Transform2D&) const = default;
};

// The nine 32-bit fixed-point values of an ISO/IEC 14496-12 track matrix, in the order
// a, b, u, c, d, v, x, y, w. The identity is {0x00010000, 0, 0, 0, 0x00010000, 0, 0, 0, 0x40000000}.
struct ZORVAN_IMPORTED_EXPORT DisplayMatrix {
    std::array<std::int32_t, 9> values{0x00010000, 0, 0, 0, 0x00010000, 0, 0, 0, 0x40000000};

    // The same matrix in doubles, in the same order: 16.16 fixed point for a, b, c, d, x, y
    // (value / 65536), 2.30 for u, v, w (value / 2^30).
    Core::Matrix3x3 GetTransform() const;

    bool operator==(const DisplayMatrix&) const = default;
};

// A colour space as three ITU-T H.273 code points: colour primaries, transfer
// characteristics, matrix coefficients. 2 means unspecified, hence the defaults.
struct ZORVAN_IMPORTED_EXPORT ColorSpace {
    std::uint32_t primaries = 2;
    std::uint32_t transfer = 2;
    std::uint32_t matrix = 2;

    // Defined in ColorUtils (the sibling library ColorUtils); see imported/ColorUtils.h
    // for the table of names.
    static ColorSpace FromString(std::string_view name);

    bool operator==(const ColorSpace&) const = default;
};

// H.273 code points that the standard defines (reserved values are invalid):
// primaries 1, 2, 4 to 12 and 22; transfer 1, 2, 4 to 18; matrix 0 to 2 and 4 to 14.
ZORVAN_IMPORTED_EXPORT bool IsValidColorPrimaries(std::uint32_t primaries);
ZORVAN_IMPORTED_EXPORT bool IsValidTransferFunction(std::uint32_t transfer);
ZORVAN_IMPORTED_EXPORT bool IsValidYCbCrMatrix(std::uint32_t matrix);

// Additional parameters appended to a file name, e.g.
// "movie.mkv??sub_charenc=cp1251&lang=en".
struct ZORVAN_IMPORTED_EXPORT IFormatFile {
    static const std::string POSTFIX_ADDITIONAL_PARAMS; // "??": starts the additional parameters
    static const std::string POSTFIX_PARAMS_SEPARATOR;  // "&;": each character separates two parameters
    static const std::string POSTFIX_VALUE_SEPARATOR;   // "=": separates key and value
};

struct ZORVAN_IMPORTED_EXPORT IFormatCodecSubtitle {
    static const std::string SUBTITLE_ENCODING_PREFIX; // "sub_charenc": key of the subtitle text encoding
};

// Codec identifiers, as FFmpeg names its codecs.
struct ZORVAN_IMPORTED_EXPORT IFormatCodecAudio {
    static const std::string CODEC_ID_AAC;      // "aac"
    static const std::string CODEC_ID_AAC_LATM; // "aac_latm"
    static const std::string CODEC_ID_MP3;      // "mp3"
    static const std::string CODEC_ID_OPUS;     // "opus"
};

struct ZORVAN_IMPORTED_EXPORT IFormatCodecVideo {
    static const std::string CODEC_ID_H264; // "h264"
    static const std::string CODEC_ID_H265; // "hevc"
    static const std::string CODEC_ID_VP9;  // "vp9"
    static const std::string CODEC_ID_AV1;  // "av1"
};

} // namespace Zorvan::Conf

namespace Zorvan::Proc {

// Names of the implementations that carry out a stage. SettingsFilterFrameRate copies two
// of them at library load, so these must be initialised first.
struct ZORVAN_IMPORTED_EXPORT ImplNames {
    static const std::string ZORVAN; // "zorvan": the engine's own implementation
    static const std::string FFMPEG; // "ffmpeg": the FFmpeg filter
};

} // namespace Zorvan::Proc
