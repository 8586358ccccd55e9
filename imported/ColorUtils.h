#pragma once
// Stand-in for the sibling library ColorUtils, for the colour-space records:
// Zorvan::Conf::ColorSpace::FromString, declared with ColorSpace in imported/ConfInt.h.
//
// Names, matched without regard to ASCII letter case, and the H.273 code points they give
// (primaries, transfer, matrix):
//
// | names                                  | primaries | transfer | matrix |
// |----------------------------------------|-----------|----------|--------|
// | "unspecified", "unknown"               | 2         | 2        | 2      |
// | "bt709", "rec709"                      | 1         | 1        | 1      |
// | "bt601", "bt601-525", "smpte170m", "ntsc" | 6      | 6        | 6      |
// | "bt601-625", "bt470bg", "pal"          | 5         | 6        | 5      |
// | "smpte240m"                            | 7         | 7        | 7      |
// | "bt2020", "bt2020nc", "rec2020"        | 9         | 14       | 9      |
// | "bt2020c"                              | 9         | 14       | 10     |
// | "bt2020-pq", "hdr10", "smpte2084"      | 9         | 16       | 9      |
// | "bt2020-hlg", "hlg", "arib-std-b67"    | 9         | 18       | 9      |
// | "srgb"                                 | 1         | 13       | 0      |
// | "display-p3", "p3"                     | 12        | 13       | 0      |
//
// Any other name gives the reserved code points 3, 3, 3, which IsValidColorPrimaries,
// IsValidTransferFunction and IsValidYCbCrMatrix all refuse.
#include "imported/ConfInt.h"
