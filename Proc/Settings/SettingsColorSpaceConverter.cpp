#include "Proc/Settings/SettingsColorSpaceConverter.h"

#include <fmt/format.h>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Spellings.h"

namespace Zorvan::Proc {

const std::string SettingsColorSpaceConverter::CLASS_ID ZORVAN_INIT_STRINGS = "ColorSpaceConverter";

SettingsColorSpaceConverter::SettingsColorSpaceConverter(const Conf::ColorSpace& destination)
    : destinationColorSpace(destination)
{
}

const std::string& SettingsColorSpaceConverter::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsColorSpaceConverter::Clone() const
{
    return std::make_unique<SettingsColorSpaceConverter>(*this);
}

bool SettingsColorSpaceConverter::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsColorSpaceConverter&>(other);
}

void SettingsColorSpaceConverter::Deserialize(const std::string& options)
{
    using LinearMode = ColorConversionInfo::LinearMode;
    using ToneMapping = ColorConversionInfo::ToneMapping;
    if (options.empty()) {
        return;
    }
    const std::string_view name = OptionRegexSearch(options, "colorSpace", "");
    if (name.empty()) {
        ThrowEffect("Parameter 'colorSpace' must be set");
    }
    destinationColorSpace = ColorSpaceFromName(name);

    // "Reffered" is how saved projects spell it.
    if (const std::string_view mode = OptionRegexSearch(options, "linearMode", ""); !mode.empty()) {
        static const SpellingTable<LinearMode> table{
            {"sceneReffered", LinearMode::SceneReferred},
            {"displayReffered", LinearMode::DisplayReferred},
            {"Rec709_A", LinearMode::Rec709A},
            {"BT709_A", LinearMode::Rec709A},
        };
        const auto found = FindSpelling(table, mode);
        if (!found) {
            ThrowEffect(fmt::format("Unknown linear mode name: {}", mode));
        }
        linearMode = *found;
    }
    if (const std::string_view mapping = OptionRegexSearch(options, "toneMapping", ""); !mapping.empty()) {
        static const SpellingTable<ToneMapping> table{
            {"none", ToneMapping::None},
            {"direct", ToneMapping::Direct},
            {"enable", ToneMapping::Enable},
        };
        const auto found = FindSpelling(table, mapping);
        if (!found) {
            ThrowEffect(fmt::format("Unknown tone mapping: {}", mapping));
        }
        toneMapping = *found;
    }
}

bool SettingsColorSpaceConverter::operator==(const SettingsColorSpaceConverter& other) const
{
    return destinationColorSpace.primaries == other.destinationColorSpace.primaries &&
           destinationColorSpace.transfer == other.destinationColorSpace.transfer &&
           destinationColorSpace.matrix == other.destinationColorSpace.matrix && linearMode == other.linearMode &&
           toneMapping == other.toneMapping;
}

const Conf::ColorSpace& SettingsColorSpaceConverter::GetDestinationColorSpace() const
{
    return destinationColorSpace;
}

void SettingsColorSpaceConverter::SetDestinationColorSpace(const Conf::ColorSpace& colorSpace)
{
    destinationColorSpace = colorSpace;
}

ColorConversionInfo::LinearMode SettingsColorSpaceConverter::GetLinearMode() const
{
    return linearMode;
}

void SettingsColorSpaceConverter::SetLinearMode(ColorConversionInfo::LinearMode mode)
{
    linearMode = mode;
}

ColorConversionInfo::ToneMapping SettingsColorSpaceConverter::GetToneMapping() const
{
    return toneMapping;
}

void SettingsColorSpaceConverter::SetToneMapping(ColorConversionInfo::ToneMapping mapping)
{
    toneMapping = mapping;
}

} // namespace Zorvan::Proc
