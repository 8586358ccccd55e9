#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// A rotation of the frame by any angle, with the size of the result and the colour of the
// uncovered corners. It keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectRotate : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Angle and type exactly; the output size only for type 1, which uses it; colour, bilinear.
    bool operator==(const SettingsEffectRotate& other) const;

    // Plain setters, unchecked.
    void SetAngle(double value);
    void SetType(std::int32_t value);
    void SetOutputSize(std::uint32_t width, std::uint32_t height);
    void SetColor(Color value);
    void SetBilinear(bool value);

    double GetAngle() const;
    std::int32_t GetType() const;
    std::uint32_t GetOutputWidth() const;
    std::uint32_t GetOutputHeight() const;
    Color GetColor() const;
    bool GetBilinear() const;

private:
    double angle = 0.0;             // degrees; none
    std::int32_t type = 0;          // 0: the input's size; 1: the output size below
    std::uint32_t outputWidth = 0;  // read only with type 1
    std::uint32_t outputHeight = 0; // read only with type 1
    Color color = 0xFF000000U;      // opaque black
    bool bilinear = true;
};

} // namespace Zorvan::Proc
