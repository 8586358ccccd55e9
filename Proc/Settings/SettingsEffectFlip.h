#pragma once
#include <string>
#include <vector>

#include "Proc/Settings/SettingsEffectTransform.h"

namespace Zorvan::Proc {

// A horizontal and/or vertical mirror of the frame, as a diagonal transform matrix.
class ZORVAN_SETTINGS_EXPORT SettingsEffectFlip : public SettingsEffectTransform {
public:
    static const std::string CLASS_ID;

    static const std::string s_flip; // "flip"
    // The one key, built at library load after the string.
    static const std::vector<std::string> s_params;

    // Neither flag: the identity.
    SettingsEffectFlip();
    SettingsEffectFlip(bool horizontal, bool vertical);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Map form over s_params: "flip" holds comma-separated tokens, quoted (the map form takes
    // no bare letters); "h" and "v" set their flags and a flag without its token is cleared.
    void Deserialize(const std::string& options) override;
    // A mirror keeps every pixel, so any frame size will do.
    bool IsOddSizeAllowed() const override;
    std::int32_t GetMode() const override;

    // Each stores the flag and rebuilds the matrix.
    void SetHorizontalFlip(bool flip);
    void SetVerticalFlip(bool flip);

    bool GetHorizontalFlip() const;
    bool GetVerticalFlip() const;

private:
    void UpdateMatrix();

    bool horizontalFlip = false;
    bool verticalFlip = false;
};

} // namespace Zorvan::Proc
