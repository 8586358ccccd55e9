#pragma once
#include <cstdint>

#include "Proc/Settings/IAnalyzerResult.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// A stage that detects a shift in audio by stepping a pattern through a window.
// Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsAnalyzerAudioDetectShift : public Settings {
public:
    static const std::string CLASS_ID;

    // The limits of SetWindow and SetPatternStep, in seconds.
    static constexpr unsigned long MIN_WINDOW_SEC = 10;
    static constexpr unsigned long MIN_PATTERN_STEP_SEC = 1;

    // The detected shift and its score, fixed at construction.
    class ZORVAN_SETTINGS_EXPORT Result : public IAnalyzerResult {
    public:
        Result(long long shift, double score);
        Result(const Result&) = default;
        Result& operator=(const Result&) = default;
        ~Result() override;

        long long GetShift() const;
        double GetScore() const;

    private:
        std::int64_t shift;
        double score;
    };

    ~SettingsAnalyzerAudioDetectShift() override;
    SettingsAnalyzerAudioDetectShift() = default;
    SettingsAnalyzerAudioDetectShift(const SettingsAnalyzerAudioDetectShift&) = default;
    SettingsAnalyzerAudioDetectShift& operator=(const SettingsAnalyzerAudioDetectShift&) = default;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Map form: "sampleRate" (std::stoi), "window", "patternStep" (std::stoull), each through its setter.
    void Deserialize(const std::string& options) override;

    // SettingsException "Invalid sample rate" unless above 0.
    void SetSampleRate(int rate);
    // SettingsException "Invalid window (less than 10 sec)" below MIN_WINDOW_SEC.
    void SetWindow(unsigned long seconds);
    // SettingsException "Invalid pattern step (less than 1 sec)" below MIN_PATTERN_STEP_SEC.
    void SetPatternStep(unsigned long seconds);

    int GetSampleRate() const;
    unsigned long GetWindow() const;
    unsigned long GetPatternStep() const;

private:
    std::int32_t sampleRate = 48000;                  // neutral default: a common valid rate
    unsigned long window = MIN_WINDOW_SEC;            // neutral default: the smallest valid window
    unsigned long patternStep = MIN_PATTERN_STEP_SEC; // neutral default: the smallest valid step
};

} // namespace Zorvan::Proc
