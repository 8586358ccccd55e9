#pragma once
#include <array>
#include <string>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A shadows, midtones and highlights colour shift. Nine ints, each -100..100, and the
// preserve-luminosity flag. The option keys are the static s_<role> strings.
class ZORVAN_SETTINGS_EXPORT SettingsEffectBalanceChroma : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_shadowsRed;         // "shadows-red"
    static const std::string s_shadowsGreen;       // "shadows-green"
    static const std::string s_shadowsBlue;        // "shadows-blue"
    static const std::string s_midtonesRed;        // "midtones-red"
    static const std::string s_midtonesGreen;      // "midtones-green"
    static const std::string s_midtonesBlue;       // "midtones-blue"
    static const std::string s_highlightsRed;      // "highlights-red"
    static const std::string s_highlightsGreen;    // "highlights-green"
    static const std::string s_highlightsBlue;     // "highlights-blue"
    static const std::string s_preserveLuminosity; // "preserve-luminosity"
    // The ten keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // All nine ints are 0; the flag is ignored.
    bool IsEmpty() const override;
    // Map form over s_params: the nine ints by std::stoi, clamped to -100..100 and stored;
    // "preserve-luminosity" by std::stoi, true when not 0. Absent keys leave their fields.
    void Deserialize(const std::string& options) override;

    // All nine ints and the flag, exact.
    bool operator==(const SettingsEffectBalanceChroma& other) const;

    // Each clamps to -100..100 and stores.
    void SetShadowsRed(int value);
    void SetShadowsGreen(int value);
    void SetShadowsBlue(int value);
    void SetMidtonesRed(int value);
    void SetMidtonesGreen(int value);
    void SetMidtonesBlue(int value);
    void SetHighlightsRed(int value);
    void SetHighlightsGreen(int value);
    void SetHighlightsBlue(int value);
    // Red, green, blue, each clamped to -100..100.
    void SetShadows(const std::array<int, 3>& values);
    void SetMidtones(const std::array<int, 3>& values);
    void SetHighlights(const std::array<int, 3>& values);
    void SetPreserveLuminosity(bool preserve);

    int GetShadowsRed() const;
    int GetShadowsGreen() const;
    int GetShadowsBlue() const;
    int GetMidtonesRed() const;
    int GetMidtonesGreen() const;
    int GetMidtonesBlue() const;
    int GetHighlightsRed() const;
    int GetHighlightsGreen() const;
    int GetHighlightsBlue() const;
    bool GetPreserveLuminosity() const;

private:
    int shadowsRed = 0;
    int shadowsGreen = 0;
    int shadowsBlue = 0;
    int midtonesRed = 0;
    int midtonesGreen = 0;
    int midtonesBlue = 0;
    int highlightsRed = 0;
    int highlightsGreen = 0;
    int highlightsBlue = 0;
    bool preserveLuminosity = true;
};

} // namespace Zorvan::Proc
