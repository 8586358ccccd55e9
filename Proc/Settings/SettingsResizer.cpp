#include "Proc/Settings/SettingsResizer.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Spellings.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

const std::string SettingsResizer::CLASS_ID ZORVAN_INIT_STRINGS = "$$RESIZE$$";

namespace {

using SizeModes = SettingsResizer::SizeModes;
using CustomModes = SettingsResizer::CustomModes;
using ResizeMethods = SettingsResizer::ResizeMethods;

const SpellingTable<SizeModes>& SizeModeSpellings()
{
    static const SpellingTable<SizeModes> table{
        {"Original", SizeModes::Original},
        {"HalfOriginal", SizeModes::HalfOriginal},
        {"QuaterOriginal", SizeModes::QuaterOriginal},
        {"CustomScale", SizeModes::CustomScale},
        {"Custom", SizeModes::Custom},
    };
    return table;
}

const SpellingTable<CustomModes>& CustomModeSpellings()
{
    static const SpellingTable<CustomModes> table{
        {"Auto", CustomModes::Auto},           {"Stretch", CustomModes::Stretch}, {"SmartFit", CustomModes::SmartFit},
        {"LetterBox", CustomModes::LetterBox}, {"Crop", CustomModes::Crop},       {"UpTo", CustomModes::UpTo},
    };
    return table;
}

const SpellingTable<ResizeMethods>& ResizeMethodSpellings()
{
    static const SpellingTable<ResizeMethods> table{
        {"fast_bilinear", ResizeMethods::FastBilinear},
        {"bilinear", ResizeMethods::Bilinear},
        {"bicubic", ResizeMethods::Bicubic},
        {"x", ResizeMethods::X},
        {"point", ResizeMethods::Point},
        {"area", ResizeMethods::Area},
        {"bicublin", ResizeMethods::Bicublin},
        {"gauss", ResizeMethods::Gauss},
        {"sinc", ResizeMethods::Sinc},
        {"lanczos", ResizeMethods::Lanczos},
        {"spline", ResizeMethods::Spline},
    };
    return table;
}

// A whole unsigned 32-bit decimal number, or nothing.
std::optional<std::uint32_t> ReadUInt32(std::string_view text)
{
    unsigned int value = 0;
    if (!Core::Utils::ToNumber<unsigned int>(text, value)) {
        return std::nullopt;
    }
    return value;
}

// size_mode, custom_mode and resize_method: a whole unsigned number is the enumerator by number
// (wrapping into the signed 32 bits), else a spelling of the table, else form B.
template <typename E>
E ReadEnumeration(std::string_view options, std::string_view key, E current, const SpellingTable<E>& table,
                  std::string_view message)
{
    const std::string_view value = Settings::OptionRegexSearch(options, key, "");
    if (value.empty()) {
        return current;
    }
    if (const auto number = ReadUInt32(value)) {
        return static_cast<E>(static_cast<std::int32_t>(*number));
    }
    if (const auto found = FindSpelling(table, value)) {
        return *found;
    }
    ThrowInvalidArgument(std::string(message) + std::string(value));
}

std::uint32_t Unsigned(SizeModes mode)
{
    return static_cast<std::uint32_t>(mode);
}

std::uint32_t Unsigned(CustomModes mode)
{
    return static_cast<std::uint32_t>(mode);
}

// The ROI margins: a total split into two even parts (1 gives 0 and 0, 6 gives 2 and 4).
std::pair<std::uint32_t, std::uint32_t> SplitEven(std::uint32_t total)
{
    const std::uint32_t half = total >> 1;
    return {half - (half & 1U), half + (half & 1U)};
}

// The ROI for one axis: `cut` of the source and `pad` of the target.
std::pair<std::uint32_t, std::uint32_t> CutAndPad(std::uint32_t fit, std::uint32_t out, std::uint32_t src)
{
    const std::int64_t d = static_cast<std::int64_t>(fit) - static_cast<std::int64_t>(out);
    if (d >= 1) {
        // d * src in 64 bits: no wrap for frames of any size.
        return {static_cast<std::uint32_t>(static_cast<std::uint64_t>(d) * src / fit + 1U), 1U};
    }
    return {1U, static_cast<std::uint32_t>(1 - d)};
}

} // namespace

const std::string& SettingsResizer::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsResizer::Clone() const
{
    return std::make_unique<SettingsResizer>(*this);
}

bool SettingsResizer::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsResizer&>(other);
}

void SettingsResizer::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // The size text before the first colon, the remaining options behind it.
    const std::string_view all(options);
    const std::size_t colon = all.find(':');
    const std::string_view sizeText = all.substr(0, colon);
    const std::string_view rest = colon == std::string_view::npos ? std::string_view{} : all.substr(colon + 1);

    // The size text is mandatory, even where the mode will not use it.
    const auto [widthText, heightText] = Core::Utils::CutString(sizeText, 'x');
    const auto width = ReadUInt32(widthText);
    const auto height = ReadUInt32(heightText);
    if (!width || !height) {
        ThrowSettings(fmt::format("Invalid output frame size = '{}'", sizeText));
    }
    Conf::FrameInfo frame{*width, *height, 1, 1};

    // An unreadable half (an upper-case X, a number beyond 32 bits) raises
    // std::bad_optional_access; kept so on purpose, callers catch that class.
    if (const std::string_view aspect = OptionRegexSearch(rest, "aspect", "\\d+x\\d+"); !aspect.empty()) {
        const auto [numerator, denominator] = Core::Utils::CutString(aspect, 'x');
        frame.parNumerator = ReadUInt32(numerator).value();
        frame.parDenominator = ReadUInt32(denominator).value();
    }

    if (const std::string_view impl = OptionRegexSearch(rest, "impl", ""); !impl.empty()) {
        SetImplName(std::string(impl));
    }

    // Custom always takes the custom mode path, and so replaces the custom
    // frame by this string's size even when neither key was given.
    const SizeModes mode = ReadEnumeration(rest, "size_mode", sizeMode, SizeModeSpellings(),
                                           "An unknown size mode has been requested for the resizer: ");
    if (mode != SizeModes::Custom) {
        SetSizeMode(mode);
    } else {
        SetCustomMode(ReadEnumeration(rest, "custom_mode", customMode, CustomModeSpellings(),
                                      "An unknown custom mode has been requested for the resizer: "),
                      frame);
    }

    // "scale" wins over the size mode read above.
    if (const auto scale = GetOption<double>(rest, "scale", "")) {
        SetCustomScale(*scale);
    }

    // Stored without a check, so that a number beyond the table is kept.
    resizeMethod = ReadEnumeration(rest, "resize_method", resizeMethod, ResizeMethodSpellings(),
                                   "An unknown resize method has been requested for the resizer: ");

    // A non-zero number turns a flag on, 0 turns it off.
    if (const auto oddWidth = GetOption<unsigned long>(rest, "odd_w_allowed", "")) {
        oddWidthAllowed = *oddWidth != 0;
    }
    if (const auto oddHeight = GetOption<unsigned long>(rest, "odd_h_allowed", "")) {
        oddHeightAllowed = *oddHeight != 0;
    }
    if (const auto value = GetOption<unsigned long>(rest, "premultiplied", "")) {
        premultiplied = *value != 0;
    }

    // The executor type is truncated to 32 bits and not checked.
    if (const std::string_view file = OptionRegexSearch(rest, "nnm_file", ""); !file.empty()) {
        model.path = std::string(file);
    }
    if (const auto type = GetOption<unsigned long>(rest, "nnm_type", "")) {
        model.executorType = static_cast<NeuralNetworkModelInfo::ExecutorType>(static_cast<std::uint32_t>(*type));
    }
    if (const auto channels = GetOption<unsigned long>(rest, "nnm_channels", "")) {
        modelChannels = *channels;
    }
}

bool SettingsResizer::operator==(const SettingsResizer& other) const
{
    const bool common = implName == other.implName && crop == other.crop && reservedInteger == other.reservedInteger &&
                        maxWidth == other.maxWidth && maxHeight == other.maxHeight &&
                        reservedInteger2 == other.reservedInteger2 && reservedInteger3 == other.reservedInteger3 &&
                        sizeMode == other.sizeMode && oddWidthAllowed == other.oddWidthAllowed &&
                        oddHeightAllowed == other.oddHeightAllowed && resizeMethod == other.resizeMethod &&
                        model == other.model;
    if (!common) {
        return false;
    }
    // Compared as signed: a negative size mode counts as below CustomScale.
    if (sizeMode < SizeModes::CustomScale) {
        return true;
    }
    if (sizeMode == SizeModes::CustomScale) {
        return scaleFactor == other.scaleFactor;
    }
    return customMode == other.customMode && customFrame == other.customFrame;
}

void SettingsResizer::SetImplName(const std::string& name)
{
    if (name.empty()) {
        ThrowSettings("Empty impl name");
    }
    implName = name;
}

const std::string& SettingsResizer::GetImplName() const
{
    return implName;
}

void SettingsResizer::SetSizeMode(SizeModes mode)
{
    if (static_cast<std::int32_t>(mode) >= 5) {
        ThrowSettings("Bad size mode");
    }
    sizeMode = mode;
}

SettingsResizer::SizeModes SettingsResizer::GetSizeMode() const
{
    return sizeMode;
}

void SettingsResizer::SetCustomMode(CustomModes mode, const Conf::FrameInfo& frame)
{
    if (static_cast<std::int32_t>(mode) >= 6) {
        ThrowSettings("Bad custom mode");
    }
    sizeMode = SizeModes::Custom;
    customMode = mode;
    customFrame = frame;
}

SettingsResizer::CustomModes SettingsResizer::GetCustomMode() const
{
    return customMode;
}

const Conf::FrameInfo& SettingsResizer::GetFrameInfo() const
{
    return customFrame;
}

void SettingsResizer::SetCustomScale(double scale)
{
    if (scale <= 0) { // not-a-number passes, kept so on purpose
        ThrowSettings("Custom scale have to be positive");
    }
    sizeMode = SizeModes::CustomScale;
    scaleFactor = scale;
}

double SettingsResizer::GetScaleFactor() const
{
    return scaleFactor;
}

void SettingsResizer::SetCrop(const CropInfo& value)
{
    crop = value;
}

const CropInfo& SettingsResizer::GetCrop() const
{
    return crop;
}

void SettingsResizer::SetMaxWidth(int width)
{
    maxWidth = width;
}

int SettingsResizer::GetMaxWidth() const
{
    return maxWidth;
}

void SettingsResizer::SetMaxHeight(int height)
{
    maxHeight = height;
}

int SettingsResizer::GetMaxHeight() const
{
    return maxHeight;
}

void SettingsResizer::SetOddWidthAllowed(bool allowed)
{
    oddWidthAllowed = allowed;
}

bool SettingsResizer::GetOddWidthAllowed() const
{
    return oddWidthAllowed;
}

void SettingsResizer::SetOddHeightAllowed(bool allowed)
{
    oddHeightAllowed = allowed;
}

bool SettingsResizer::GetOddHeightAllowed() const
{
    return oddHeightAllowed;
}

void SettingsResizer::SetPremultiplied(bool value)
{
    premultiplied = value;
}

bool SettingsResizer::GetPremultiplied() const
{
    return premultiplied;
}

void SettingsResizer::SetResizeMethod(ResizeMethods method)
{
    resizeMethod = method;
}

SettingsResizer::ResizeMethods SettingsResizer::GetResizeMethod() const
{
    return resizeMethod;
}

void SettingsResizer::SetModel(const NeuralNetworkModelInfo& value)
{
    model = value;
}

const NeuralNetworkModelInfo& SettingsResizer::GetModel() const
{
    return model;
}

void SettingsResizer::SetModelChannels(std::uint64_t channels)
{
    modelChannels = channels;
}

std::uint64_t SettingsResizer::GetModelChannels() const
{
    return modelChannels;
}

void SettingsResizer::SetReservedInteger(std::int32_t value)
{
    reservedInteger = value;
}

std::int32_t SettingsResizer::GetReservedInteger() const
{
    return reservedInteger;
}

void SettingsResizer::SetReservedInteger2(std::int32_t value)
{
    reservedInteger2 = value;
}

std::int32_t SettingsResizer::GetReservedInteger2() const
{
    return reservedInteger2;
}

void SettingsResizer::SetReservedInteger3(std::int32_t value)
{
    reservedInteger3 = value;
}

std::int32_t SettingsResizer::GetReservedInteger3() const
{
    return reservedInteger3;
}

bool SettingsResizer::IsEnabled() const
{
    return sizeMode != SizeModes::Original || crop.left != 0 || crop.right != 0 || crop.top != 0 || crop.bottom != 0;
}

Conf::FrameInfo SettingsResizer::GetOutputFrameSize(const Conf::FrameInfo& frame) const
{
    if (Unsigned(sizeMode) > 4U) {
        ThrowLogicError(fmt::format("Unknown resize mode '{}'", Unsigned(sizeMode)));
    }
    // The source size after the crop, in unsigned wrap-around.
    const std::uint32_t srcW = frame.width - crop.left - crop.right;
    const std::uint32_t srcH = frame.height - crop.top - crop.bottom;
    Conf::FrameInfo result{srcW, srcH, frame.parNumerator, frame.parDenominator};

    // The maximum size, which never enlarges and keeps the aspect ratio.
    const auto limitToMaximum = [this](Conf::FrameInfo& size) {
        if (maxWidth == 0 || maxHeight == 0) {
            return;
        }
        const double w = size.width;
        const double h = size.height;
        const double rw = w / maxWidth;
        const double rh = h / maxHeight;
        const double r = std::max(std::max(rw, 1.0), rh);
        size.width = TruncateSaturated(w / r);
        size.height = TruncateSaturated(h / r);
    };

    switch (sizeMode) {
    case SizeModes::Original:
        limitToMaximum(result);
        break;
    case SizeModes::HalfOriginal:
        result.width = srcW >> 1;
        result.height = srcH >> 1;
        limitToMaximum(result);
        break;
    case SizeModes::QuaterOriginal:
        result.width = srcW >> 2;
        result.height = srcH >> 2;
        limitToMaximum(result);
        break;
    case SizeModes::CustomScale:
        // The maximum size does not apply.
        result.width = TruncateSaturated(scaleFactor * srcW);
        result.height = TruncateSaturated(scaleFactor * srcH);
        break;
    case SizeModes::Custom: {
        if (Unsigned(customMode) > 5U) {
            ThrowLogicError(fmt::format("Unknown resize custom mode '{}'", Unsigned(customMode)));
        }
        const auto smartFit = [&] {
            // The two products in 32 bits, wrapping on purpose: output sizes must match those the
            // engine has always computed.
            const std::uint32_t numerator = customFrame.parDenominator * frame.parNumerator;
            const std::uint32_t denominator = customFrame.parNumerator * frame.parDenominator;
            const double ratio = static_cast<double>(srcW) / srcH * numerator / denominator;
            const std::uint32_t w = TruncateSaturated(ratio * customFrame.height);
            if (customFrame.width <= w) {
                return Conf::FrameInfo{customFrame.width, TruncateSaturated(customFrame.width / ratio),
                                       customFrame.parNumerator, customFrame.parDenominator};
            }
            return Conf::FrameInfo{w, customFrame.height, customFrame.parNumerator, customFrame.parDenominator};
        };
        switch (customMode) {
        case CustomModes::UpTo:
            if (customFrame.width >= srcW && customFrame.height >= srcH) {
                break; // srcW by srcH with the frame's pixel aspect
            }
            result = smartFit();
            break;
        case CustomModes::SmartFit:
            result = smartFit();
            break;
        default: // Auto, Stretch, LetterBox, Crop
            result = customFrame;
            break;
        }
        break;
    }
    }

    // A size of 0 beside a non-zero one becomes 1.
    if (result.width == 0 && result.height != 0) {
        result.width = 1;
    } else if (result.height == 0 && result.width != 0) {
        result.height = 1;
    }
    // Odd sizes are rounded upward in every mode, CustomScale included.
    if (!oddWidthAllowed && (result.width & 1U) != 0) {
        result.width += 1;
    }
    if (!oddHeightAllowed && (result.height & 1U) != 0) {
        result.height += 1;
    }
    return result;
}

Conf::FrameInfo SettingsResizer::GetROI(const Conf::FrameInfo& frame, CropInfo& source, CropInfo& target) const
{
    const Conf::FrameInfo out = GetOutputFrameSize(frame);

    const std::uint32_t srcW = frame.width - crop.left - crop.right;
    const std::uint32_t srcH = frame.height - crop.top - crop.bottom;
    std::uint32_t fitW = out.width;
    std::uint32_t fitH = out.height;

    // Auto, LetterBox and Crop: the size the source takes at its own aspect, rounded down to even.
    if (sizeMode == SizeModes::Custom &&
        (customMode == CustomModes::Auto || customMode == CustomModes::LetterBox || customMode == CustomModes::Crop)) {
        const double srcRatio = static_cast<double>(srcW) / srcH;
        double aspect = 0.0;
        if (customMode == CustomModes::Auto) {
            const double frameAspect = static_cast<double>(frame.parNumerator) / frame.parDenominator;
            const double outRatio = static_cast<double>(out.width) / out.height;
            const double outAspect = static_cast<double>(out.parNumerator) / out.parDenominator;
            aspect = (frameAspect * srcRatio + outRatio * outAspect) * 0.5 * out.parDenominator / out.parNumerator;
        } else {
            // The products in 32 bits.
            const std::uint32_t numerator = out.parDenominator * frame.parNumerator;
            const std::uint32_t denominator = out.parNumerator * frame.parDenominator;
            aspect = srcRatio * numerator / denominator;
        }
        const std::uint32_t candH = std::max(TruncateSaturated(out.width / aspect), 2U);
        const std::uint32_t candW = std::max(TruncateSaturated(aspect * out.height), 2U);
        if (customMode == CustomModes::LetterBox) {
            if (candW < out.width) {
                fitW = candW;
                fitH = out.height;
            } else {
                fitW = out.width;
                fitH = candH;
            }
        } else if (candW < out.width) {
            fitW = out.width;
            fitH = candH;
        } else if (candW > out.width) {
            fitW = candW;
            fitH = out.height;
        }
        fitW &= ~1U;
        fitH &= ~1U;
    }

    // Cut from the source or pad around it, each margin split into two even parts.
    const auto [cutX, padX] = CutAndPad(fitW, out.width, srcW);
    const auto [cutY, padY] = CutAndPad(fitH, out.height, srcH);
    const auto [cutLeft, cutRight] = SplitEven(cutX);
    const auto [cutTop, cutBottom] = SplitEven(cutY);
    const auto [padLeft, padRight] = SplitEven(padX);
    const auto [padTop, padBottom] = SplitEven(padY);
    source = CropInfo{cutLeft + crop.left, cutRight + crop.right, cutTop + crop.top, cutBottom + crop.bottom};
    target = CropInfo{padLeft, padRight, padTop, padBottom};
    return out;
}

std::array<float, 16> SettingsResizer::CalculateCoordBuffer(const Conf::FrameInfo& frame) const
{
    CropInfo source{};
    CropInfo target{};
    const Conf::FrameInfo out = GetROI(frame, source, target);
    const auto W = static_cast<float>(frame.width);
    const auto H = static_cast<float>(frame.height);
    const auto OW = static_cast<float>(out.width);
    const auto OH = static_cast<float>(out.height);
    const float uLeft = static_cast<float>(source.left) / W;
    const float uRight = 1.0F - static_cast<float>(source.right) / W;
    const float vTop = static_cast<float>(source.top) / H;
    const float vBottom = 1.0F - static_cast<float>(source.bottom) / H;
    const float xLeft = 2.0F * static_cast<float>(target.left) / OW - 1.0F;
    const float xRight = 1.0F - 2.0F * static_cast<float>(target.right) / OW;
    const float yTop = 2.0F * static_cast<float>(target.top) / OH - 1.0F;
    const float yBottom = 1.0F - 2.0F * static_cast<float>(target.bottom) / OH;
    return {uLeft,  vTop,    xLeft,  yTop,    uRight, vTop,    xRight, yTop,
            uRight, vBottom, xRight, yBottom, uLeft,  vBottom, xLeft,  yBottom};
}

} // namespace Zorvan::Proc
