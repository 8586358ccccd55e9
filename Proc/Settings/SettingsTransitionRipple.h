#pragma once
#include <cstdint>

#include "Proc/Settings/RelativePoint.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Ripples spreading from a point of the frame. Keeps the base IsEqualTo (it throws) and IsEmpty
// (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionRipple : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Modes : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "mode", "ampl", "period", "n", then "x" and "y". The counts are whole numbers that go
    // through the lower bounds of their setters, a negative one as its large unsigned image;
    // "x" and "y" count only together, each clamped to 0..1.
    void Deserialize(const std::string& options) override;

    void SetMode(Modes value) { mode = value; }
    // Each stores the larger of the value and its lower bound: 10, 7 and 1.
    void SetAmplitude(unsigned int value);
    void SetPeriod(unsigned int value);
    void SetWaveCount(unsigned int value);
    // The named point; a number outside the table gives (0.5, 0.5).
    void SetPoint(RelativePoint::Centers center) { point = RelativePoint(center); }
    void SetPoint(const RelativePoint& value) { point = value; }

    Modes GetMode() const { return mode; }
    unsigned int GetAmplitude() const { return amplitude; }
    unsigned int GetPeriod() const { return period; }
    unsigned int GetWaveCount() const { return waveCount; }
    const RelativePoint& GetPoint() const { return point; }

private:
    Modes mode{};
    std::uint32_t amplitude = 10U;
    std::uint32_t period = 10U;
    std::uint32_t waveCount = 1U;
    RelativePoint point; // the centre, (0.5, 0.5)
};

} // namespace Zorvan::Proc
