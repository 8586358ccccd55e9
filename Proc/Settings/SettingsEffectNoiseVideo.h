#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Video noise: the method, a seed and the strength. No option keys (the base's Deserialize
// throws). Empty when the strength is 0; compares the method and the strength, not the seed.
class ZORVAN_SETTINGS_EXPORT SettingsEffectNoiseVideo : public Settings {
public:
    static const std::string CLASS_ID;

    // Outside code and saved projects use the numbers, not the enumerator names.
    enum class Method : std::int32_t {
        Uniform = 0,
        Gaussian = 1,
        Temporal = 2,
        Averaged = 3,
        Pattern = 4,
    };

    // Neutral: the first method at strength 0, so the stage changes nothing (and is empty).
    SettingsEffectNoiseVideo();
    // Stores the method, a seed of 0 and the strength.
    SettingsEffectNoiseVideo(int strength, Method method);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;

    // The method and the strength, exact; the seed takes no part.
    bool operator==(const SettingsEffectNoiseVideo& other) const;

    // Plain stores.
    void SetMethod(Method method);
    void SetSeed(int seed);
    void SetStrength(int strength);

    Method GetMethod() const;
    int GetSeed() const;
    int GetStrength() const;

private:
    Method method;
    int seed = 0;
    int strength;
};

} // namespace Zorvan::Proc
