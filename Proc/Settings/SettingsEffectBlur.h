#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A blur record without its own Deserialize (the base's throws). Compares all ten fields
// exactly; empty when the fifth field, `radius`, is 0.
class ZORVAN_SETTINGS_EXPORT SettingsEffectBlur : public Settings {
public:
    static const std::string CLASS_ID;

    // Outside code and saved projects use the numbers, not the enumerator names.
    enum class Algorithm : std::int32_t {
        Box = 0,
        Gaussian = 1,
        Median = 2,
        Bilateral = 3,
    };

    // Default constructor: the first enumerator and the defaults below.
    SettingsEffectBlur();
    // The algorithm and the constructor defaults of the other nine fields.
    explicit SettingsEffectBlur(Algorithm algorithm);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override; // the fifth field (radius) is 0

    // All ten fields, exact, in field order.
    bool operator==(const SettingsEffectBlur& other) const;

    // Plain stores.
    void SetAlgorithm(Algorithm algorithm);
    void SetKernelSize(int kernelSize);
    void SetSigmaX(double sigmaX);
    void SetSigmaY(double sigmaY);
    void SetRadius(int radius);
    void SetMaxRadius(int maxRadius);
    void SetAnchor(int anchor);
    void SetBorderMode(int borderMode);
    void SetToleranceX(double toleranceX);
    void SetToleranceY(double toleranceY);

    Algorithm GetAlgorithm() const;
    int GetKernelSize() const;
    double GetSigmaX() const;
    double GetSigmaY() const;
    int GetRadius() const;
    int GetMaxRadius() const;
    int GetAnchor() const;
    int GetBorderMode() const;
    double GetToleranceX() const;
    double GetToleranceY() const;

private:
    Algorithm algorithm;
    int kernelSize = 2;
    double sigmaX = -1.0;
    double sigmaY = -1.0;
    int radius = 1;
    int maxRadius = 15;
    int anchor = -1;
    int borderMode = 0;
    double toleranceX = 0.02;
    double toleranceY = 0.02;
};

} // namespace Zorvan::Proc
