#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Find edges. Map form, keys "blend" (double), "sensibility" (double), "type" (int into
// `Type`); the fields are declared type, blend, sensibility. Keeps the base's IsEqualTo and
// IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectFindEdges : public Settings {
public:
    static const std::string CLASS_ID;

    // Outside code and saved projects use the numbers, not the enumerator names.
    enum class Type : std::int32_t {
        Sobel = 0,
        Prewitt = 1,
        Laplacian = 2,
    };

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    void Deserialize(const std::string& options) override;

    void SetParams(Type type, double blend, double sensibility);

    Type GetType() const;
    double GetBlend() const;
    double GetSensibility() const;

private:
    Type type = Type::Sobel;  // default: the first enumerator
    double blend = 0.0;       // neutral default: 0, nothing of the edges blended in
    double sensibility = 0.0; // default: 0
};

} // namespace Zorvan::Proc
