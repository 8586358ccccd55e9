#pragma once
// Frame sizes under a 2D transform: the frame that bounds the transformed picture, and the
// frame that keeps the picture's proportions under the transform's scale and shear.
#include "Proc/Settings/Export.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

// The bounding frame of the frame under the transform (Transform2D::GetBoundingBox, with
// `even` passed on). The translation m6, m7 is read in frame widths and heights, as the
// editor stores a shift, and turned into pixels first.
ZORVAN_SETTINGS_EXPORT Conf::FrameInfo BoundFrameInfo(const Conf::FrameInfo& frameInfo,
                                                      const Conf::Transform2D& transform, bool even);

namespace EditorAlgorithms {

// The frame whose proportions match the picture once the transform has stretched it.
// L1 and L2 are the lengths that the unit steps along x and y take under the transform
// (from the image of (0, 0) to those of (1, 0) and (0, 1)); with the displayed widths
// W = parNumerator * width and H = parDenominator * height, r = (W / L1) / (H / L2) and
// a = W / H. When r > a the height stays and the width becomes r * width / a + 0.5,
// otherwise the width stays and the height becomes a * height / r + 0.5, both truncated
// (saturating; not-a-number gives 0). W and H wrap at 32 bits in r but not in a.
// A result with a side above 4096 is scaled so that its larger side is 4096 (each side
// times 4096 / larger, + 0.5, truncated); `even` then clears the lowest bit of both sides.
// The pixel aspect is the frame's.
ZORVAN_SETTINGS_EXPORT Conf::FrameInfo TransformFrameInfo(const Conf::FrameInfo& frameInfo,
                                                          const Conf::Transform2D& transform, bool even);

} // namespace EditorAlgorithms

} // namespace Zorvan::Proc
