#pragma once
#include <array>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Tilt shift between an upper and a lower line. Overrides Deserialize only: the base's
// IsEqualTo throws and its IsEmpty is false.
class ZORVAN_SETTINGS_EXPORT SettingsEffectTiltShiftVEZ : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    // Plain stores.
    void SetUpperLine(double a, double b, double c);
    void SetLowerLine(double a, double b, double c);
    void SetParams(double smoothness, double blurness);

    // A line as its coefficients {a, b, c} ("ua", "ub", "uc" and "la", "lb", "lc").
    std::array<double, 3> GetUpperLine() const;
    std::array<double, 3> GetLowerLine() const;
    double GetSmoothness() const;
    double GetBlurness() const;

private:
    // Neutral defaults: all 0; blurness 0 blurs nothing.
    std::array<double, 3> upperLine{};
    std::array<double, 3> lowerLine{};
    double smoothness = 0.0;
    double blurness = 0.0;
};

} // namespace Zorvan::Proc
