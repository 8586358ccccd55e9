#pragma once
#include <cstdint>
#include <string>

#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Cuts a person out of the frame with a neural model. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectHumanMatting : public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Key by key, text unquoted: "nnm_file" (the model path), "nnm_type" (an unsigned number,
    // the executor), "downscaling_frame_size" (an unsigned number).
    void Deserialize(const std::string& options) override;

    void SetModelPath(const std::string& path);
    void SetModelBinaryData(const std::string& data);
    void SetModelType(NeuralNetworkModelInfo::ExecutorType type);
    const NeuralNetworkModelInfo& GetModelInfo() const;
    void SetDownscalingFrameSize(unsigned int size);
    unsigned int GetDownscalingFrameSize() const;

private:
    NeuralNetworkModelInfo modelInfo;
    std::uint32_t downscalingFrameSize = 0; // neutral default: 0, the frame is not downscaled
};

} // namespace Zorvan::Proc
