#pragma once
#include <cstdint>
#include <optional>

#include <boost/rational.hpp>

#include "Proc/Settings/SettingsFilterSpeedUp.h"

namespace Zorvan::Proc {

// The speed factor with an optional constant frame rate and seeking.
class ZORVAN_SETTINGS_EXPORT SettingsFilterSpeedUpVideo : public SettingsFilterSpeedUp {
public:
    using Rational = boost::rational<std::int64_t>;

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    bool IsEmpty() const override;
    void Deserialize(const std::string& options) override;

    // Speed compared exactly (not `nearly equal` as in the base; kept so on purpose), the
    // optionals, use seek.
    bool operator==(const SettingsFilterSpeedUpVideo& other) const;
    bool operator!=(const SettingsFilterSpeedUpVideo& other) const;

    void SetConstantFPS(const Rational& rate);
    const std::optional<Rational>& GetConstantFPS() const;
    void UseSeek(bool useSeek);
    bool IsUseSeek() const;

private:
    std::optional<Rational> constantFPS; // default: no constant rate
    bool useSeek = false;
};

} // namespace Zorvan::Proc
