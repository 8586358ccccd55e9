#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// How interlaced pictures are turned into progressive ones.
class ZORVAN_SETTINGS_EXPORT SettingsDeinterlace : public Settings {
public:
    static const std::string CLASS_ID;

    enum class FrameMode : std::int32_t {
        SendFrame = 0,          // "SendFrame": one frame per frame
        SendField = 1,          // "SendField": one frame per field
        SendFrameNospatial = 2, // "SendFrameNospatial"
        SendFieldNospatial = 3, // "SendFieldNospatial"
    };
    enum class DeinterlaceMode : std::int32_t {
        DeinterlaceAll = 0,            // "DeinterlaceAll"
        DeinterlaceOnlyInterlaced = 1, // "DeinterlaceOnlyInterlaced"
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // "frame-mode", then "deinterlace-mode"; an unknown word throws std::invalid_argument.
    void Deserialize(const std::string& options) override;

    bool operator==(const SettingsDeinterlace& other) const;

    FrameMode GetFrameMode() const;
    void SetFrameMode(FrameMode mode);
    DeinterlaceMode GetDeinterlaceMode() const;
    void SetDeinterlaceMode(DeinterlaceMode mode);

private:
    FrameMode frameMode = FrameMode::SendFrame;
    DeinterlaceMode deinterlaceMode = DeinterlaceMode::DeinterlaceOnlyInterlaced;
};

} // namespace Zorvan::Proc
