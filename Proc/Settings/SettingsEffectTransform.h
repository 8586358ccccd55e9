#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"
#include "imported/Utils.h"

namespace Zorvan::Proc {

// A 2D transform of the frame by a 3 by 3 matrix, row by row. The base of the flip.
class ZORVAN_SETTINGS_EXPORT SettingsEffectTransform : public Settings {
public:
    static const std::string CLASS_ID;

    // The identity: no odd sizes, mode 0, no source, scale 1.
    SettingsEffectTransform() = default;
    // The given matrix and mode; no odd sizes, no source, scale 1.
    explicit SettingsEffectTransform(const Core::Matrix3x3& matrix, std::int32_t mode = 0);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // The identity matrix and no source.
    bool IsEmpty() const override;

    // Behind the base's operations, in this order: the engine is built against this vtable.
    virtual bool IsOddSizeAllowed() const;
    virtual std::int32_t GetMode() const;

    // Never equal while either record has a source, not even to itself: the matrix may follow
    // the source. Otherwise mode, matrix (exactly) and scale (exactly).
    bool operator==(const SettingsEffectTransform& other) const;

    // The only setters; each stores unchecked.
    void SetSource(std::uint64_t value);
    void SetScale(double value);

    std::uint64_t GetSource() const;
    const Core::Matrix3x3& GetMatrix() const;
    double GetScale() const;

protected:
    bool oddSizeAllowed = false;
    std::int32_t mode = 0;
    std::uint64_t source = 0; // handle of the stream the matrix follows; 0: none
    Core::Matrix3x3 matrix;   // the identity
    double scale = 1.0;
};

} // namespace Zorvan::Proc
