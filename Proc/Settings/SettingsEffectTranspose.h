#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

// A rotation of the frame by quarter turns, held as a transform matrix laid out as in
// SettingsEffectTransform. It keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectTranspose : public Settings {
public:
    // A signed count of quarter turns; the setters keep it within -3..3.
    enum class Rotation : std::int32_t { Angle0 = 0, Angle90 = 1, Angle180 = 2, Angle270 = 3 };

    static const std::string CLASS_ID;

    // No turn: the identity.
    SettingsEffectTranspose() = default;
    explicit SettingsEffectTranspose(Rotation rotation);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Stores the remainder by 4, with the sign of the argument, and rebuilds the matrix.
    void SetRotation(Rotation value);
    // A quarter turn more, or less (three more), the remainder by 4, and the matrix rebuilt.
    void AddAngle90();
    void SubAngle90();

    bool IsOddSizeAllowed() const;
    std::int32_t GetMode() const;
    std::uint64_t GetSource() const;
    // Row by row: cos, sin, 0; -sin, cos, 0; 0, 0, 1 of the rotation's angle.
    const Core::Matrix3x3& GetMatrix() const;
    double GetScale() const;
    Rotation GetRotation() const;

private:
    void UpdateMatrix();

    bool oddSizeAllowed = false;
    std::int32_t mode = 0;
    std::uint64_t source = 0; // no source stream
    Core::Matrix3x3 matrix;   // the identity
    double scale = 1.0;
    Rotation rotation = Rotation::Angle0;
};

} // namespace Zorvan::Proc
