#pragma once
#include <utility>
#include <vector>

#include "Proc/Settings/IAnalyzerResult.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// A stage that finds silent stretches. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsAnalyzerSilenceDetector : public Settings {
public:
    static const std::string CLASS_ID;

    // The silence intervals in the order of insertion. Microseconds go in,
    // milliseconds come out.
    class ZORVAN_SETTINGS_EXPORT Result : public IAnalyzerResult {
    public:
        // Begin and end, in milliseconds.
        using SilenceInterval = std::pair<long long, long long>;

        Result() = default;
        Result(const Result&) = default;
        Result& operator=(const Result&) = default;
        ~Result() override;

        // Begin and end in microseconds, each divided by 1000 truncating toward zero and
        // appended as they come: no check of order, overlap or duplicates.
        void AddSilenceInterval(long long begin, long long end);
        const std::vector<SilenceInterval>& GetResult() const;

    private:
        std::vector<SilenceInterval> intervals;
    };

    ~SettingsAnalyzerSilenceDetector() override;
    SettingsAnalyzerSilenceDetector() = default;
    SettingsAnalyzerSilenceDetector(const SettingsAnalyzerSilenceDetector&) = default;
    SettingsAnalyzerSilenceDetector& operator=(const SettingsAnalyzerSilenceDetector&) = default;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // GetOption form: "threshold" (float), then "minSilenceDuration" (int, milliseconds),
    // each through its setter.
    void Deserialize(const std::string& options) override;

    // SettingsException "Invalid threshold! Should be in range from 0.0 to 1.0" outside 0 to 1
    // inclusive (not-a-number included).
    void SetThreshold(float value);
    // The argument counts milliseconds; 100 or more, stored multiplied by 1000 in microseconds.
    // SettingsException "Invalid minimum silence duration. Should be more than 100ms" below 100.
    void SetMinSilenceDuration(avTime milliseconds);

    float GetThreshold() const;
    // In microseconds.
    avTime GetMinSilenceDuration() const;

private:
    float threshold = 0.0F;             // neutral default: 0, only full silence counts
    avTime minSilenceDuration = 100000; // neutral default: the smallest valid, 100 ms
};

} // namespace Zorvan::Proc
