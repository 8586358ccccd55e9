#pragma once
#include <string>

#include "Proc/Settings/Export.h"
#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/SettingsResizer.h"

namespace Zorvan::Proc {

// What the stages that generate intermediate frames with a neural network share: the model,
// and how frames are scaled before they reach it. A plain value, not a Settings: the frame
// generating records keep it as a non-public base. No setter checks anything.
class ZORVAN_SETTINGS_EXPORT AIFrameGeneratorSettings {
public:
    // A path and binary data do not exclude each other here: both are kept as given.
    void SetModelPath(const std::string& path);
    void SetModelBinaryData(const std::string& data);
    void SetModelType(NeuralNetworkModelInfo::ExecutorType type);
    const NeuralNetworkModelInfo& GetModelInfo() const;
    void SetResizeMethod(SettingsResizer::ResizeMethods method);
    SettingsResizer::ResizeMethods GetResizeMethod() const;
    void SetResizePercents(unsigned char percents);
    unsigned char GetResizePercents() const;

    // Keys "nnm_file", "nnm_type", "resize_method", "resize_percents", in that order; an
    // empty string changes nothing. A model file replaces model data given before.
    void DeserializeSettings(const std::string& options);

    // Model (path, data, executor), resize method and resize percents, all exact.
    bool operator==(const AIFrameGeneratorSettings& other) const;

private:
    NeuralNetworkModelInfo modelInfo{};
    SettingsResizer::ResizeMethods resizeMethod = SettingsResizer::ResizeMethods::FastBilinear; // the value 0
    unsigned char resizePercents = 100; // neutral default: frames reach the model at full size
};

} // namespace Zorvan::Proc
