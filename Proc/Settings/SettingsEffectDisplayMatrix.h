#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"
#include "imported/ConfInt.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

// The display matrix of a track, applied to its frames; laid out as SettingsEffectTransform
// with a copy of the track matrix behind. It keeps the base's IsEqualTo, IsEmpty and Deserialize.
class ZORVAN_SETTINGS_EXPORT SettingsEffectDisplayMatrix : public Settings {
public:
    static const std::string CLASS_ID;

    // The identity track matrix.
    SettingsEffectDisplayMatrix() = default;
    explicit SettingsEffectDisplayMatrix(const Conf::DisplayMatrix& displayMatrix);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // Keeps a copy and overwrites the transform matrix with the copy's GetTransform().
    void SetMatrix(const Conf::DisplayMatrix& value);

    bool IsOddSizeAllowed() const;
    std::int32_t GetMode() const;
    std::uint64_t GetSource() const;
    const Core::Matrix3x3& GetMatrix() const;
    double GetScale() const;
    const Conf::DisplayMatrix& GetDisplayMatrix() const;

private:
    bool oddSizeAllowed = false;
    std::int32_t mode = 0;
    std::uint64_t source = 0; // no source stream
    Core::Matrix3x3 matrix;   // the identity, the transform of the identity track matrix
    double scale = 1.0;
    Conf::DisplayMatrix displayMatrix; // the identity
};

} // namespace Zorvan::Proc
