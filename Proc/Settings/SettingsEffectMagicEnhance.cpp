#include "Proc/Settings/SettingsEffectMagicEnhance.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "Proc/Settings/Arithmetic.h"
#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

namespace {

using Histogram = SettingsEffectMagicEnhance::Histogram;
using ContrastTable = SettingsEffectMagicEnhance::ContrastTable;

struct Edges {
    int low;
    int high;
};

// The total of a histogram, wrapping at 32 bits.
std::uint32_t Total(const Histogram& histogram)
{
    std::uint32_t total = 0;
    for (const std::uint32_t counter : histogram) {
        total += counter;
    }
    return total;
}

// The threshold T of the tail scan: the total shifted right by 14.
std::uint32_t Threshold(const Histogram& histogram)
{
    return Total(histogram) >> 14U;
}

// Tail scan: the low edge is the first bin from 0 upward at which the running sum is strictly
// above T, the high edge the same from 255 downward; a running sum not above T continues the
// scan. A histogram whose sums never rise above T (total 0) is not a valid input; here the
// scan stops at the end of the array (low 255, high 0).
Edges TailScan(const Histogram& histogram, std::uint32_t threshold)
{
    int low = 0;
    std::uint32_t sum = histogram[0];
    while (sum <= threshold && low < 255) {
        ++low;
        sum += histogram[static_cast<std::size_t>(low)];
    }
    int high = 255;
    sum = histogram[255];
    while (sum <= threshold && high > 0) {
        --high;
        sum += histogram[static_cast<std::size_t>(high)];
    }
    return {low, high};
}

void ContrastSingleForce(const Histogram& histogram, ContrastTable& table)
{
    const Edges edges = TailScan(histogram, Threshold(histogram));
    const int width = edges.high - edges.low;
    const int middle = (edges.low + edges.high) / 2; // truncates toward zero
    const double gain = std::fma(width / -219.0 + 1.0, 0.05, 1.0);
    const double offset = (128 - middle) * 0.05;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double value = std::trunc(std::fma(gain, static_cast<double>(i), offset) + 0.5);
        if (value < 0.0) {
            table[i] = 0;
        } else if (value >= 255.0) {
            table[i] = 255;
        } else {
            table[i] = static_cast<std::uint8_t>(value);
        }
    }
}

// The second pass replaces the first: the table maps input levels by the second line alone.
void ContrastDoubleForce(const Histogram& histogram, ContrastTable& table)
{
    ContrastSingleForce(histogram, table);
    Histogram second{};
    for (std::size_t i = 0; i < histogram.size(); ++i) {
        second[table[i]] += histogram[i];
    }
    ContrastSingleForce(second, table);
}

// T from the first histogram alone serves both. The edges and shifts are added in 64 bits so
// that no shift can overflow.
double SaturationFactor(const Histogram& first, const Histogram& second, int firstShift, int secondShift)
{
    const std::uint32_t threshold = Threshold(first);
    const Edges edges1 = TailScan(first, threshold);
    const Edges edges2 = TailScan(second, threshold);
    const std::int64_t top = std::max(std::int64_t{edges1.high} + firstShift, std::int64_t{edges2.high} + secondShift);
    const std::int64_t bottom = std::min(std::int64_t{edges1.low} + firstShift, std::int64_t{edges2.low} + secondShift);
    const std::int64_t distance = std::max(std::abs(top - 128), std::abs(bottom - 128));
    if (distance < 48) {
        return 1.1;
    }
    if (distance < 80) {
        return std::fma(static_cast<double>(distance - 48), -0.00625, 1.1);
    }
    return 0.9;
}

double SaturationSingleForce(const Histogram& first, const Histogram& second, int firstShift, int secondShift)
{
    return SaturationFactor(first, second, firstShift, secondShift);
}

// The factor is computed and then squared: the constants are not pre-rounded.
double SaturationDoubleForce(const Histogram& first, const Histogram& second, int firstShift, int secondShift)
{
    const double factor = SaturationFactor(first, second, firstShift, secondShift);
    return factor * factor;
}

// The sum over i of i * counter, wrapping at 32 bits.
std::uint32_t WeightedSum(const Histogram& histogram)
{
    std::uint32_t sum = 0;
    for (std::uint32_t i = 0; i < histogram.size(); ++i) {
        sum += i * histogram[i];
    }
    return sum;
}

// trunc((128 - mean) * factor + 0.5), fused, toward zero. A result beyond int (only a mean
// far above 255 gives one) saturates, as the conversion of the 64-bit Arm target does.
int Shift(std::uint32_t mean, double factor)
{
    return TruncateToIntSaturated(std::fma(128.0 - static_cast<double>(mean), factor, 0.5));
}

void CustomAutoWiteBalance(const Histogram& first, const Histogram& second, int& firstShift, int& secondShift)
{
    const std::uint32_t total = Total(first);
    const std::uint32_t threshold = total >> 14U;
    const Edges edges1 = TailScan(first, threshold);
    const Edges edges2 = TailScan(second, threshold);
    // The first histogram's total divides both means. A total of 0 is not a valid input; the
    // means are then taken as 0 rather than divided by zero.
    const std::uint32_t mean1 = total != 0 ? WeightedSum(first) / total : 0;
    const std::uint32_t mean2 = total != 0 ? WeightedSum(second) / total : 0;
    const int spread = (std::abs(edges1.high - edges2.high) + std::abs(edges1.low - edges2.low)) >> 1;
    const int widest = std::max(edges1.high - edges1.low, edges2.high - edges2.low);
    const int limit = std::max(widest, spread);
    const double factor = std::max(224 - limit, 0) * 0.00390625; // exactly 1/256
    firstShift = Shift(mean1, factor);
    secondShift = Shift(mean2, factor);
}

const SettingsEffectMagicEnhance::ContrastFunction g_customContrastTable[] = {nullptr, ContrastSingleForce,
                                                                              ContrastDoubleForce};
const SettingsEffectMagicEnhance::SaturationFunction g_customSaturationForce[] = {nullptr, SaturationSingleForce,
                                                                                  SaturationDoubleForce};

} // namespace

const std::string SettingsEffectMagicEnhance::CLASS_ID ZORVAN_INIT_STRINGS = "$$MAGIC_ENHANCE$$";

const std::string& SettingsEffectMagicEnhance::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectMagicEnhance::Clone() const
{
    return std::make_unique<SettingsEffectMagicEnhance>(*this);
}

bool SettingsEffectMagicEnhance::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectMagicEnhance&>(other);
}

bool SettingsEffectMagicEnhance::operator==(const SettingsEffectMagicEnhance& other) const
{
    if (contrastForce != other.contrastForce) {
        return false;
    }
    if (contrastForce == 0 &&
        (brightness != other.brightness || contrast != other.contrast || furtherInt1 != other.furtherInt1 ||
         furtherInt2 != other.furtherInt2 || gamma != other.gamma)) {
        return false;
    }
    if (whiteBalanceForce != other.whiteBalanceForce) {
        return false;
    }
    if (whiteBalanceForce == 0 && (temperature != other.temperature || tint != other.tint)) {
        return false;
    }
    if (saturationForce != other.saturationForce) {
        return false;
    }
    // Not above 0.001; a NaN fails the test.
    if (saturationForce == 0 && !(std::abs(saturation - other.saturation) <= 0.001)) {
        return false;
    }
    return lastInt == other.lastInt;
}

void SettingsEffectMagicEnhance::SetBrightness(int value)
{
    brightness = value;
}

void SettingsEffectMagicEnhance::SetContrast(int value)
{
    contrast = value;
}

void SettingsEffectMagicEnhance::SetGamma(double value)
{
    gamma = value;
}

void SettingsEffectMagicEnhance::SetTemperature(int value)
{
    temperature = value;
}

void SettingsEffectMagicEnhance::SetTint(int value)
{
    tint = value;
}

void SettingsEffectMagicEnhance::SetSaturation(double value)
{
    saturation = value;
}

void SettingsEffectMagicEnhance::SetContrastForce(std::uint32_t value)
{
    contrastForce = value;
}

void SettingsEffectMagicEnhance::SetWhiteBalanceForce(std::uint32_t value)
{
    whiteBalanceForce = value;
}

void SettingsEffectMagicEnhance::SetSaturationForce(std::uint32_t value)
{
    saturationForce = value;
}

void SettingsEffectMagicEnhance::SetFurtherInt1(int value)
{
    furtherInt1 = value;
}

void SettingsEffectMagicEnhance::SetFurtherInt2(int value)
{
    furtherInt2 = value;
}

void SettingsEffectMagicEnhance::SetLastInt(int value)
{
    lastInt = value;
}

std::uint32_t SettingsEffectMagicEnhance::GetContrastForce() const
{
    return contrastForce;
}

int SettingsEffectMagicEnhance::GetBrightness() const
{
    return brightness;
}

int SettingsEffectMagicEnhance::GetContrast() const
{
    return contrast;
}

int SettingsEffectMagicEnhance::GetFurtherInt1() const
{
    return furtherInt1;
}

int SettingsEffectMagicEnhance::GetFurtherInt2() const
{
    return furtherInt2;
}

double SettingsEffectMagicEnhance::GetGamma() const
{
    return gamma;
}

std::uint32_t SettingsEffectMagicEnhance::GetWhiteBalanceForce() const
{
    return whiteBalanceForce;
}

int SettingsEffectMagicEnhance::GetTemperature() const
{
    return temperature;
}

int SettingsEffectMagicEnhance::GetTint() const
{
    return tint;
}

std::uint32_t SettingsEffectMagicEnhance::GetSaturationForce() const
{
    return saturationForce;
}

double SettingsEffectMagicEnhance::GetSaturation() const
{
    return saturation;
}

int SettingsEffectMagicEnhance::GetLastInt() const
{
    return lastInt;
}

SettingsEffectMagicEnhance::ContrastFunction SettingsEffectMagicEnhance::GetCustomContrast() const
{
    return g_customContrastTable[contrastForce]; // unchecked: the caller holds the force to 0..2
}

SettingsEffectMagicEnhance::SaturationFunction SettingsEffectMagicEnhance::GetCustomSaturation() const
{
    return g_customSaturationForce[saturationForce]; // unchecked: the caller holds the force to 0..2
}

SettingsEffectMagicEnhance::WhiteBalanceFunction SettingsEffectMagicEnhance::GetCustomWhiteBalance() const
{
    return whiteBalanceForce != 0 ? CustomAutoWiteBalance : nullptr;
}

} // namespace Zorvan::Proc
