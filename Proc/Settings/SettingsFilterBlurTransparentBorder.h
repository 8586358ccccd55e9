#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The blur that softens the transparent border of a frame, by the size of its matrix.
// Overrides IsEqualTo only: no option string, and the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsFilterBlurTransparentBorder : public Settings {
public:
    static const std::string CLASS_ID;

    SettingsFilterBlurTransparentBorder() = default;
    // The size is adjusted as SetMatrixSize does.
    explicit SettingsFilterBlurTransparentBorder(int matrixSize);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;

    bool operator==(const SettingsFilterBlurTransparentBorder& other) const;

    // Keeps a positive odd size and stores size + 1 for any other, so that a negative odd
    // size becomes even: the border stage relies on exactly this rule.
    void SetMatrixSize(int size);
    int GetMatrixSize() const;

private:
    int matrixSize = 1; // neutral default: a 1x1 matrix blurs nothing
};

} // namespace Zorvan::Proc
