#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A view into 360-degree video mapped on a cylinder: the two viewing angles and the zoom.
class ZORVAN_SETTINGS_EXPORT SettingsEffect360Cylindrical : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // Disabled, or all three values `near zero`.
    bool IsEmpty() const override;

    // Two disabled records are equal whatever they hold; else the flag, and each value within
    // 2.220446049250313e-16 (strictly).
    bool operator==(const SettingsEffect360Cylindrical& other) const;

    // Each stores unchecked.
    void SetEnabled(bool value);
    void SetFi(double value);
    void SetTetta(double value);
    void SetZoom(double value);
    void SetParams(double fi, double tetta, double zoom);

    bool GetEnabled() const;
    double GetFi() const;
    double GetTetta() const;
    double GetZoom() const;

private:
    bool enabled = false; // off: the frame passes unchanged
    double fi = 0.0;
    double tetta = 0.0;
    double zoom = 0.0;
};

} // namespace Zorvan::Proc
