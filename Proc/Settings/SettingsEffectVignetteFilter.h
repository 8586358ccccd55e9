#pragma once
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// A darkened or coloured border around a centre, between an inner and an outer radius.
// Overrides IsEqualTo (every field, exact) and Deserialize; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectVignetteFilter : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    void Deserialize(const std::string& options) override;

    // Every field exact, in field order.
    bool operator==(const SettingsEffectVignetteFilter& other) const;

    // Plain stores, unchecked.
    void SetParams(double x0, double y0, double ri, double re);
    void SetIntensity(float intensity);
    void SetForm(int form);
    void SetSmooth(int smooth);
    void SetAspect(int aspect);
    void SetColor(Color color);

    int GetForm() const;
    int GetSmooth() const;
    int GetAspect() const;
    // Red lowest, alpha highest.
    Color GetColor() const;
    double GetX0() const;
    double GetY0() const;
    double GetRi() const;
    double GetRe() const;
    float GetIntensity() const;

private:
    // Defaults all 0 (the filter stage defines what the selectors mean).
    int form = 0;
    int smooth = 0;
    int aspect = 0;
    Color color = 0; // default: transparent black
    double x0 = 0.0;
    double y0 = 0.0;
    double ri = 0.0;
    double re = 0.0;
    float intensity = 0.0F; // neutral default: 0, the stage changes nothing
};

} // namespace Zorvan::Proc
