#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// Plays an intro, loops the middle of a source and ends with an outro, filling a duration.
// Compared only through operator==: IsEqualTo, IsEmpty and Deserialize stay the base's.
class ZORVAN_SETTINGS_EXPORT SettingsFilterIntroLoopOutro : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // All four fields equal.
    bool operator==(const SettingsFilterIntroLoopOutro& other) const;

    // Plain stores, unchecked.
    void SetDuration(avTime value);
    void SetIntro(avTime value);
    void SetOutro(avTime value);
    void SetLoopMinCount(unsigned int count);

    avTime GetDuration() const;
    avTime GetIntro() const;
    avTime GetOutro() const;
    unsigned int GetLoopMinCount() const;

private:
    // Neutral defaults: no duration, no intro, no outro, no required loop.
    avTime duration = 0;
    avTime intro = 0;
    avTime outro = 0;
    std::uint32_t loopMinCount = 0;
};

} // namespace Zorvan::Proc
