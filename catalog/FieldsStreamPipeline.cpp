#include "Proc/Settings/SettingsColorSpaceConverter.h"
#include "Proc/Settings/SettingsDeinterlace.h"
#include "Proc/Settings/SettingsParser.h"
#include "Proc/Settings/SettingsPixelFormatConverter.h"
#include "Proc/Settings/SettingsVideoDecoder.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

namespace {

nlohmann::json ColorSpaceToJson(const Conf::ColorSpace& colorSpace)
{
    return {{"primaries", colorSpace.primaries}, {"transfer", colorSpace.transfer}, {"matrix", colorSpace.matrix}};
}

} // namespace

void AddFieldsStreamPipeline(FieldMap& fields)
{
    using Proc::SettingsColorSpaceConverter;
    using Proc::SettingsDeinterlace;
    using Proc::SettingsParser;
    using Proc::SettingsPixelFormatConverter;
    using Proc::SettingsVideoDecoder;
    fields["SettingsParser"] = {
        Field<SettingsParser>("subtitleEncoding", &SettingsParser::GetSubtitleEncoding),
    };
    fields["SettingsVideoDecoder"] = {
        Field<SettingsVideoDecoder>("frameType", &SettingsVideoDecoder::GetFrameType),
        Field<SettingsVideoDecoder>("minColorDepth", &SettingsVideoDecoder::GetMinColorDepth),
        FieldJson<SettingsVideoDecoder>("outputResolution",
                                        [](const SettingsVideoDecoder& c) -> nlohmann::json {
                                            const auto& size = c.GetOutputResolution();
                                            if (!size) {
                                                return nullptr;
                                            }
                                            return {{"width", size->width}, {"height", size->height}};
                                        }),
        FieldJson<SettingsVideoDecoder>(
            "colorSpaceOverride",
            [](const SettingsVideoDecoder& c) { return ColorSpaceToJson(c.GetColorSpaceOverride()); }),
    };
    fields["SettingsColorSpaceConverter"] = {
        FieldJson<SettingsColorSpaceConverter>(
            "destinationColorSpace",
            [](const SettingsColorSpaceConverter& c) { return ColorSpaceToJson(c.GetDestinationColorSpace()); }),
        Field<SettingsColorSpaceConverter>("linearMode", &SettingsColorSpaceConverter::GetLinearMode),
        Field<SettingsColorSpaceConverter>("toneMapping", &SettingsColorSpaceConverter::GetToneMapping),
    };
    fields["SettingsDeinterlace"] = {
        Field<SettingsDeinterlace>("frameMode", &SettingsDeinterlace::GetFrameMode),
        Field<SettingsDeinterlace>("deinterlaceMode", &SettingsDeinterlace::GetDeinterlaceMode),
    };
    fields["SettingsPixelFormatConverter"] = {
        Field<SettingsPixelFormatConverter>("pixelFormats", &SettingsPixelFormatConverter::GetPixelFormats),
        Field<SettingsPixelFormatConverter>("reservedByte", &SettingsPixelFormatConverter::GetReservedByte),
        Field<SettingsPixelFormatConverter>("padColor", &SettingsPixelFormatConverter::GetPadColor),
    };
}

} // namespace Zorvan::CatalogDetail
