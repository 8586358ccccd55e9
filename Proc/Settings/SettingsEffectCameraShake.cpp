#include "Proc/Settings/SettingsEffectCameraShake.h"

#include <cmath>
#include <cstdint>

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"

namespace Zorvan::Proc {

namespace {

// The noise coefficients, one row per axis; saved projects replay the same shake only with
// these exact values.
struct NoiseCoefficients {
    std::uint32_t a;
    std::uint32_t b;
    std::uint32_t c;
};

constexpr NoiseCoefficients kNoiseX{15731U, 789221U, 1376312627U};
constexpr NoiseCoefficients kNoiseY{15733U, 789227U, 1376312629U};
constexpr NoiseCoefficients kNoiseR{15737U, 789251U, 1376312657U};

// Hash of an integer in wrapping 32-bit arithmetic (done unsigned): a value in about -1..1.
double Hash(std::uint32_t k, const NoiseCoefficients& row)
{
    const std::uint32_t n = k ^ (k << 13U);
    std::uint32_t h = ((n * row.a) * n + row.b) * n + row.c;
    h &= 0x7FFFFFFFU;
    return 1.0 - static_cast<double>(h) * 0x1p-30;
}

double Noise(double time, int octaves, double persistence, const NoiseCoefficients& row)
{
    if (octaves < 1) {
        return 0.0;
    }
    double sum = 0.0;
    double amplitude = 1.0;
    double x = time;
    for (int octave = 0; octave < octaves; ++octave) {
        const std::int32_t i = TruncateToIntSaturated(x);
        const auto k = static_cast<std::uint32_t>(i);
        const double left = Hash(k, row);
        const double right = Hash(k + 1U, row); // i + 1 wraps
        const double f = x - static_cast<double>(i);
        // Quintic smoothstep f*f*f*(f*(f*6 - 15) + 10), the inner two steps fused.
        const double inner = std::fma(f, 6.0, -15.0);
        const double inner2 = std::fma(f, inner, 10.0);
        const double s = f * f * f * inner2;
        const double value = std::fma(s, right - left, left);
        sum = std::fma(value, amplitude, sum);
        x = x + x;
        amplitude = amplitude * persistence;
    }
    return sum * 0.5;
}

} // namespace

const std::string SettingsEffectCameraShake::CLASS_ID ZORVAN_INIT_STRINGS = "$$EffectCameraShake$$";

const std::string& SettingsEffectCameraShake::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectCameraShake::Clone() const
{
    return std::make_unique<SettingsEffectCameraShake>(*this);
}

bool SettingsEffectCameraShake::IsEmpty() const
{
    if (NearZero(intensity)) {
        return true;
    }
    if (NearZero(freq)) {
        return true;
    }
    return NearZero(rotate) && NearZero(shiftx) && NearZero(shifty);
}

void SettingsEffectCameraShake::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    // Stored straight into the fields, in key order.
    const auto map = GetOptionsMap(options, {"shiftx", "shifty", "rotate", "freq", "persistence", "intensity"});
    MapForm::Read(map, "shiftx", shiftx);
    MapForm::Read(map, "shifty", shifty);
    MapForm::Read(map, "rotate", rotate);
    MapForm::Read(map, "freq", freq);
    MapForm::Read(map, "persistence", persistence);
    MapForm::Read(map, "intensity", intensity);
}

void SettingsEffectCameraShake::SetSettings(double newShiftx, double newShifty, double newRotate, double newFreq,
                                            double newPersistence)
{
    shiftx = newShiftx;
    shifty = newShifty;
    rotate = newRotate;
    freq = newFreq;
    persistence = newPersistence;
}

void SettingsEffectCameraShake::SetIntensity(float value)
{
    intensity = value;
}

double SettingsEffectCameraShake::GetShiftx() const
{
    return shiftx;
}

double SettingsEffectCameraShake::GetShifty() const
{
    return shifty;
}

double SettingsEffectCameraShake::GetRotate() const
{
    return rotate;
}

double SettingsEffectCameraShake::GetFreq() const
{
    return freq;
}

double SettingsEffectCameraShake::GetPersistence() const
{
    return persistence;
}

float SettingsEffectCameraShake::GetIntensity() const
{
    return intensity;
}

double SettingsEffectCameraShake::GetNoizeX(double time, int octaves, double persistenceOfOctaves) const
{
    return Noise(time, octaves, persistenceOfOctaves, kNoiseX);
}

double SettingsEffectCameraShake::GetNoizeY(double time, int octaves, double persistenceOfOctaves) const
{
    return Noise(time, octaves, persistenceOfOctaves, kNoiseY);
}

double SettingsEffectCameraShake::GetNoizeR(double time, int octaves, double persistenceOfOctaves) const
{
    return Noise(time, octaves, persistenceOfOctaves, kNoiseR);
}

} // namespace Zorvan::Proc
