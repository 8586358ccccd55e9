#pragma once
// The resizer: output frame size, region of interest and the quad to draw.
#include <array>
#include <cstdint>
#include <string>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/Settings.h"
#include "imported/ConfInt.h"

namespace Zorvan::Proc {

class ZORVAN_SETTINGS_EXPORT SettingsResizer : public Settings {
public:
    static const std::string CLASS_ID;

    // The numbers are the interface (saved projects store them), signed 32-bit (SetSizeMode and
    // SetCustomMode compare as signed, GetOutputFrameSize as unsigned). Deserialize spells
    // them as the comments say.
    enum class SizeModes : std::int32_t {
        Original = 0,       // "Original"
        HalfOriginal = 1,   // "HalfOriginal"
        QuaterOriginal = 2, // "QuaterOriginal"
        CustomScale = 3,    // "CustomScale"
        Custom = 4,         // "Custom"
    };
    enum class CustomModes : std::int32_t {
        Auto = 0,      // "Auto"
        Stretch = 1,   // "Stretch"
        SmartFit = 2,  // "SmartFit"
        LetterBox = 3, // "LetterBox"
        Crop = 4,      // "Crop"
        UpTo = 5,      // "UpTo"
    };
    enum class ResizeMethods : std::int32_t {
        FastBilinear = 0, // "fast_bilinear"
        Bilinear = 1,     // "bilinear"
        Bicubic = 2,      // "bicubic"
        X = 3,            // "x"
        Point = 4,        // "point"
        Area = 5,         // "area"
        Bicublin = 6,     // "bicublin"
        Gauss = 7,        // "gauss"
        Sinc = 8,         // "sinc"
        Lanczos = 9,      // "lanczos"
        Spline = 10,      // "spline"
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // The option string "WxH[:key=value...]": a keyless head (the size, mandatory), then the
    // keys aspect, impl, size_mode, custom_mode, scale, resize_method, odd_w_allowed,
    // odd_h_allowed, premultiplied, nnm_file, nnm_type, nnm_channels.
    void Deserialize(const std::string& options) override;

    // Implementation name, crop, the five integers, size mode, odd flags, resize method,
    // model; then the scale factor (at CustomScale) or the custom mode and frame (above it).
    // The premultiplied flag and the model channels take no part.
    bool operator==(const SettingsResizer& other) const;

    // Throws SettingsException "Empty impl name" on an empty name.
    void SetImplName(const std::string& name);
    const std::string& GetImplName() const;

    // Throws SettingsException "Bad size mode" at 5 or more (signed); Custom keeps the frame.
    void SetSizeMode(SizeModes mode);
    SizeModes GetSizeMode() const;

    // Throws SettingsException "Bad custom mode" at 6 or more (signed); else stores the size
    // mode Custom, the custom mode and the custom frame.
    void SetCustomMode(CustomModes mode, const Conf::FrameInfo& frame);
    CustomModes GetCustomMode() const;
    const Conf::FrameInfo& GetFrameInfo() const;

    // Throws SettingsException "Custom scale have to be positive" at zero or below (NaN
    // passes); else stores the size mode CustomScale and the factor.
    void SetCustomScale(double scale);
    double GetScaleFactor() const;

    // Stored unchecked.
    void SetCrop(const CropInfo& crop);
    const CropInfo& GetCrop() const;
    void SetMaxWidth(int width);
    int GetMaxWidth() const;
    void SetMaxHeight(int height);
    int GetMaxHeight() const;
    void SetOddWidthAllowed(bool allowed);
    bool GetOddWidthAllowed() const;
    void SetOddHeightAllowed(bool allowed);
    bool GetOddHeightAllowed() const;
    void SetPremultiplied(bool premultiplied);
    bool GetPremultiplied() const;
    void SetResizeMethod(ResizeMethods method);
    ResizeMethods GetResizeMethod() const;
    void SetModel(const NeuralNetworkModelInfo& model);
    const NeuralNetworkModelInfo& GetModel() const;
    void SetModelChannels(std::uint64_t channels);
    std::uint64_t GetModelChannels() const;
    // The three reserved integers, no meaning of their own yet: kept, copied, compared.
    void SetReservedInteger(std::int32_t value);
    std::int32_t GetReservedInteger() const;
    void SetReservedInteger2(std::int32_t value);
    std::int32_t GetReservedInteger2() const;
    void SetReservedInteger3(std::int32_t value);
    std::int32_t GetReservedInteger3() const;

    // True when the size mode is not Original or any crop margin is not zero.
    bool IsEnabled() const;

    // The output frame for an input frame. Throws std::logic_error "Unknown resize mode 'N'"
    // or "Unknown resize custom mode 'N'" (form B) for modes beyond the tables.
    Conf::FrameInfo GetOutputFrameSize(const Conf::FrameInfo& frame) const;
    // The output frame, and the even margins of the part of the input used (`source`, in
    // input pixels) and of where it lands (`target`, in output pixels).
    Conf::FrameInfo GetROI(const Conf::FrameInfo& frame, CropInfo& source, CropInfo& target) const;
    // Four vertices (top left, top right, bottom right, bottom left), each u, v, x, y.
    std::array<float, 16> CalculateCoordBuffer(const Conf::FrameInfo& frame) const;

private:
    // Neutral defaults, so that a new record changes nothing: no implementation named,
    // no crop, no limit, the size of the source, nothing odd rounded, nothing premultiplied.
    std::string implName;
    CropInfo crop{};
    std::int32_t reservedInteger = 0;
    std::int32_t maxWidth = 0;
    std::int32_t maxHeight = 0;
    std::int32_t reservedInteger2 = 0;
    std::int32_t reservedInteger3 = 0;
    SizeModes sizeMode = SizeModes::Original;
    CustomModes customMode = CustomModes::Auto;
    Conf::FrameInfo customFrame{};
    double scaleFactor = 1.0;
    bool oddWidthAllowed = true;
    bool oddHeightAllowed = true;
    bool premultiplied = false;
    ResizeMethods resizeMethod = ResizeMethods::FastBilinear; // neutral default: the value 0
    NeuralNetworkModelInfo model{};
    std::uint64_t modelChannels = 0;
};

} // namespace Zorvan::Proc
