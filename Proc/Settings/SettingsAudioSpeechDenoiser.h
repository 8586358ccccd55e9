#pragma once
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Speech denoising by a neural network: the sample rate and the length of the pieces it is fed,
// and the model. Rates and lengths below 1 are dropped without a word, by the setters and by the
// option string alike. Keeps the base IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsAudioSpeechDenoiser : public Settings {
public:
    static const std::string CLASS_ID;

    static const std::string s_sampleRate; // "sample_rate"
    static const std::string s_duration;   // "duration"
    static const std::string s_modelPath;  // "nnm_file"
    static const std::string s_modelType;  // "nnm_type"
    // The four keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // After a checked cast (std::bad_cast for a foreign class): sampleRate, duration, and the
    // model's path, binary data and executor type, all exactly.
    bool IsEqualTo(const Settings& other) const override;
    // Map form over s_params, in its order: "sample_rate" (std::stoi) and "duration" (std::stoll,
    // milliseconds) each kept when 1 or more, else dropped; "nnm_file" (quoted) empties the
    // model's binary data and sets its path without the quotes; "nnm_type" (std::stoi) is stored
    // as the executor type unchecked.
    void Deserialize(const std::string& options) override;

    // Stores a rate of 1 or more; any other changes nothing and raises nothing.
    void SetSampleRate(int value);
    // Stores a length of 1 ms or more; any other changes nothing and raises nothing.
    void SetDuration(const std::chrono::milliseconds& value);
    // Unchecked; a path and binary data are kept side by side as given.
    void SetModelPath(const std::string& path);
    void SetModelBinaryData(const std::string& data);
    void SetModelType(NeuralNetworkModelInfo::ExecutorType type);

    int GetSampleRate() const;
    std::chrono::milliseconds GetDuration() const;
    const NeuralNetworkModelInfo& GetModelInfo() const;

private:
    std::int32_t sampleRate = 48000;        // neutral default: a common valid rate
    std::chrono::milliseconds duration{10}; // neutral default: a valid length; no model, no change
    NeuralNetworkModelInfo modelInfo{};     // neutral default: no model, CPU
};

} // namespace Zorvan::Proc
