#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A pinwheel. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionPinwheel : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "n", "freq", "ampl", "smoothness", in this order, each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetNum(int value) { num = value; }
    void SetFreq(int value) { freq = value; }
    void SetAmpl(int value) { ampl = value; }
    void SetSmoothness(int value) { smoothness = value; }
    int GetNum() const { return num; }
    int GetFreq() const { return freq; }
    int GetAmpl() const { return ampl; }
    int GetSmoothness() const { return smoothness; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    std::int32_t num = 0;
    std::int32_t freq = 0;
    std::int32_t ampl = 0;
    std::int32_t smoothness = 0;
};

} // namespace Zorvan::Proc
