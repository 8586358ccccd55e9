#pragma once
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Identifier-only class: the engine picks the stage by its CLASS_ID; it carries no options,
// so the record keeps the base operations (IsEqualTo and Deserialize throw, IsEmpty is false).
class ZORVAN_SETTINGS_EXPORT SettingsAudioGenerator : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;

    // sin(sample * 3.14 * 0.0009765625) in double: nearly one period per 2048 samples, with 3.14
    // in place of pi, so sample 1024 gives sin(3.14), not 0.
    static double Sinusoid(int sample);
};

} // namespace Zorvan::Proc
