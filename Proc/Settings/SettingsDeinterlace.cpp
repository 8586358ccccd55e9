#include "Proc/Settings/SettingsDeinterlace.h"

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/ProcException.h"
#include "Proc/Settings/Spellings.h"

namespace Zorvan::Proc {

const std::string SettingsDeinterlace::CLASS_ID ZORVAN_INIT_STRINGS = "EFFECT_DEINTERLACE";

namespace {

// The word under `key`, looked up in `table`; an absent key keeps `current`.
template <typename E>
E ReadMode(std::string_view options, std::string_view key, E current, const SpellingTable<E>& table,
           const std::string& message)
{
    const std::string_view word = Settings::OptionRegexSearch(options, key, "");
    if (word.empty()) {
        return current;
    }
    const auto found = FindSpelling(table, word);
    if (!found) {
        ThrowInvalidArgument(message + std::string(word));
    }
    return *found;
}

} // namespace

const std::string& SettingsDeinterlace::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsDeinterlace::Clone() const
{
    return std::make_unique<SettingsDeinterlace>(*this);
}

bool SettingsDeinterlace::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsDeinterlace&>(other);
}

void SettingsDeinterlace::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    static const SpellingTable<FrameMode> frameModes{
        {"SendFrame", FrameMode::SendFrame},
        {"SendField", FrameMode::SendField},
        {"SendFrameNospatial", FrameMode::SendFrameNospatial},
        {"SendFieldNospatial", FrameMode::SendFieldNospatial},
    };
    static const SpellingTable<DeinterlaceMode> deinterlaceModes{
        {"DeinterlaceAll", DeinterlaceMode::DeinterlaceAll},
        {"DeinterlaceOnlyInterlaced", DeinterlaceMode::DeinterlaceOnlyInterlaced},
    };
    frameMode = ReadMode(options, "frame-mode", frameMode, frameModes, "Invalid frame mode: ");
    deinterlaceMode =
        ReadMode(options, "deinterlace-mode", deinterlaceMode, deinterlaceModes, "Invalid deinterlace mode: ");
}

bool SettingsDeinterlace::operator==(const SettingsDeinterlace& other) const
{
    return frameMode == other.frameMode && deinterlaceMode == other.deinterlaceMode;
}

SettingsDeinterlace::FrameMode SettingsDeinterlace::GetFrameMode() const
{
    return frameMode;
}

void SettingsDeinterlace::SetFrameMode(FrameMode mode)
{
    frameMode = mode;
}

SettingsDeinterlace::DeinterlaceMode SettingsDeinterlace::GetDeinterlaceMode() const
{
    return deinterlaceMode;
}

void SettingsDeinterlace::SetDeinterlaceMode(DeinterlaceMode mode)
{
    deinterlaceMode = mode;
}

} // namespace Zorvan::Proc
