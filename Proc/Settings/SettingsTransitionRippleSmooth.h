#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Smooth ripples. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionRippleSmooth : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "freq", "ampl", in this order, each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetFreq(int value) { freq = value; }
    void SetAmpl(int value) { ampl = value; }
    int GetFreq() const { return freq; }
    int GetAmpl() const { return ampl; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    std::int32_t freq = 0;
    std::int32_t ampl = 0;
};

} // namespace Zorvan::Proc
