#pragma once
#include <array>
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// One-button enhancement. For each of three corrections (contrast, white balance, saturation)
// either manual values or an automatic strength (a force); for an automatic choice the getters
// hand the engine a function that derives the correction from histograms. Configured by setters
// alone: keeps the base's Deserialize (throws) and IsEmpty (false).
class ZORVAN_SETTINGS_EXPORT SettingsEffectMagicEnhance : public Settings {
public:
    static const std::string CLASS_ID;

    // Exactly 256 unsigned 32-bit counters; all sums over it wrap at 32 bits.
    using Histogram = std::array<std::uint32_t, 256>;
    // Exactly 256 bytes, filled by the callee.
    using ContrastTable = std::array<std::uint8_t, 256>;
    // (histogram, table): fills the table.
    using ContrastFunction = void (*)(const Histogram& histogram, ContrastTable& table);
    // (first histogram, second histogram, first shift, second shift): the saturation factor.
    using SaturationFunction = double (*)(const Histogram& first, const Histogram& second, int firstShift,
                                          int secondShift);
    // (first histogram, second histogram, first shift out, second shift out).
    using WhiteBalanceFunction = void (*)(const Histogram& first, const Histogram& second, int& firstShift,
                                          int& secondShift);

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;

    // In this order, stopping at the first difference: contrastForce, and when it is 0
    // brightness, contrast, the two further ints and gamma (exact); whiteBalanceForce, and when
    // it is 0 temperature and tint; saturationForce, and when it is 0 saturation within 0.001
    // (at most; a NaN fails); the last field, exact.
    bool operator==(const SettingsEffectMagicEnhance& other) const;

    // Plain stores; they do not touch the force fields.
    void SetBrightness(int value);
    void SetContrast(int value);
    void SetGamma(double value);
    void SetTemperature(int value);
    void SetTint(int value);
    void SetSaturation(double value);

    // The force fields, the two further ints and the last field: plain stores, unchecked.
    void SetContrastForce(std::uint32_t value);
    void SetWhiteBalanceForce(std::uint32_t value);
    void SetSaturationForce(std::uint32_t value);
    void SetFurtherInt1(int value);
    void SetFurtherInt2(int value);
    void SetLastInt(int value);

    std::uint32_t GetContrastForce() const;
    int GetBrightness() const;
    int GetContrast() const;
    int GetFurtherInt1() const;
    int GetFurtherInt2() const;
    double GetGamma() const;
    std::uint32_t GetWhiteBalanceForce() const;
    int GetTemperature() const;
    int GetTint() const;
    std::uint32_t GetSaturationForce() const;
    double GetSaturation() const;
    int GetLastInt() const;

    // g_customContrastTable[contrastForce]: none (nullptr), ContrastSingleForce,
    // ContrastDoubleForce. Unchecked index: the caller holds the force to 0..2.
    ContrastFunction GetCustomContrast() const;
    // g_customSaturationForce[saturationForce]: none (nullptr), SaturationSingleForce,
    // SaturationDoubleForce. Unchecked index: the caller holds the force to 0..2.
    SaturationFunction GetCustomSaturation() const;
    // CustomAutoWiteBalance when whiteBalanceForce is not 0, else none (nullptr).
    WhiteBalanceFunction GetCustomWhiteBalance() const;

private:
    std::uint32_t contrastForce = 0; // 0 manual; 1 and 2 index g_customContrastTable
    int brightness = 0;
    int contrast = 0;
    int furtherInt1 = 0; // unnamed manual value of the contrast group
    int furtherInt2 = 0; // unnamed manual value of the contrast group
    double gamma = 1.0;
    std::uint32_t whiteBalanceForce = 0; // 0 manual; any other value: automatic balance
    int temperature = 0;
    int tint = 0;
    std::uint32_t saturationForce = 0; // 0 manual; 1 and 2 index g_customSaturationForce
    double saturation = 1.0;
    int lastInt = 0; // unnamed; compared always
};

} // namespace Zorvan::Proc
