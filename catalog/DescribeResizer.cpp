#include "catalog/DescribeKeys.h"

namespace Zorvan::DescribeDetail {

namespace {

nlohmann::json Frame(unsigned width, unsigned height, unsigned parNumerator, unsigned parDenominator)
{
    return {{"width", width}, {"height", height}, {"parNumerator", parNumerator}, {"parDenominator", parDenominator}};
}

nlohmann::json Model(const std::string& path, unsigned executorType)
{
    return {{"path", path}, {"binaryDataSize", 0}, {"executorType", executorType}};
}

} // namespace

// The resizer reads key by key behind its size: a number or a spelling for each mode, flags as
// unsigned numbers, texts up to the next colon.
void DescribeResizer(DescriptionMap& descriptions)
{
    const auto flag = [](std::string key, std::string field, bool byDefault) {
        Key made = Bool(std::move(key), OptionBoolean::NonZero, std::move(field), byDefault);
        made.cType = "unsigned long";
        return made;
    };
    Key head("", OptionValueType::SizeHead, "WxH", "customFrame", Frame(0, 0, 1, 1));
    head.failure = {"SettingsException", "Invalid output frame size = '{value}'"};
    head.outside = OptionOutside::Throws;
    head.Note("required, even where the mode does not use it; the custom frame takes it with size_mode=Custom");

    OptionDescription resizer = Described(
        "SettingsResizer", OptionReader::KeyByKey,
        {head,
         Text("aspect", "customFrame", "")
             .Example("16x9", Frame(1920, 1080, 16, 9))
             .Needs("size_mode=Custom")
             .Note("pixel aspect NxM; an unreadable half raises std::bad_optional_access"),
         Text("impl", "implName"),
         Enumeration("size_mode", "sizeMode", 0,
                     {{"Original", 0}, {"HalfOriginal", 1}, {"QuaterOriginal", 2}, {"CustomScale", 3}, {"Custom", 4}},
                     "std::invalid_argument", "An unknown size mode has been requested for the resizer: {value}")
             .Range(std::nullopt, 4)
             .Throws("SettingsException", "Bad size mode")
             .Note("a whole number is taken as the mode's number; Custom reads custom_mode and the size"),
         Enumeration("custom_mode", "customMode", 0,
                     {{"Auto", 0}, {"Stretch", 1}, {"SmartFit", 2}, {"LetterBox", 3}, {"Crop", 4}, {"UpTo", 5}},
                     "std::invalid_argument", "An unknown custom mode has been requested for the resizer: {value}")
             .Range(std::nullopt, 5)
             .Throws("SettingsException", "Bad custom mode")
             .Needs("size_mode=Custom"),
         Double("scale", "scaleFactor", 1.0)
             .Range(0, std::nullopt)
             .Exclusive(true, false)
             .Throws("SettingsException", "Custom scale have to be positive")
             .Note("wins over size_mode: the mode becomes CustomScale"),
         Enumeration("resize_method", "resizeMethod", 0,
                     {{"fast_bilinear", 0},
                      {"bilinear", 1},
                      {"bicubic", 2},
                      {"x", 3},
                      {"point", 4},
                      {"area", 5},
                      {"bicublin", 6},
                      {"gauss", 7},
                      {"sinc", 8},
                      {"lanczos", 9},
                      {"spline", 10}},
                     "std::invalid_argument", "An unknown resize method has been requested for the resizer: {value}")
             .Range(std::nullopt, 10)
             .Unchecked(),
         flag("odd_w_allowed", "oddWidthAllowed", true), flag("odd_h_allowed", "oddHeightAllowed", true),
         flag("premultiplied", "premultiplied", false),
         Text("nnm_file", "model", "").Example("sample", Model("sample", 0)),
         Unsigned("nnm_type", "unsigned long", "model").Example("7", Model("", 7)).Note("truncated to 32 bits"),
         Unsigned("nnm_channels", "unsigned long", "modelChannels")});
    resizer.keys[1].defaultValue = Frame(0, 0, 1, 1);
    resizer.keys[10].defaultValue = Model("", 0);
    resizer.keys[11].defaultValue = Model("", 0);
    resizer.head = "1920x1080";
    descriptions[resizer.className] = std::move(resizer);
}

} // namespace Zorvan::DescribeDetail
