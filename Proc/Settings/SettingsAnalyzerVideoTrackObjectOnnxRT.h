#pragma once
#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectBase.h"

namespace Zorvan::Proc {

// A tracker of two neural network models (a backbone and a head) for ONNX
// Runtime. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsAnalyzerVideoTrackObjectOnnxRT : public SettingsAnalyzerVideoTrackObjectBase {
public:
    static const std::string CLASS_ID;

    ~SettingsAnalyzerVideoTrackObjectOnnxRT() override;
    SettingsAnalyzerVideoTrackObjectOnnxRT() = default;
    SettingsAnalyzerVideoTrackObjectOnnxRT(const SettingsAnalyzerVideoTrackObjectOnnxRT&) = default;
    SettingsAnalyzerVideoTrackObjectOnnxRT& operator=(const SettingsAnalyzerVideoTrackObjectOnnxRT&) = default;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Map form: "backbone_nnm_file", "backbone_nnm_type", "head_nnm_file",
    // "confidence_threshold", "head_nnm_type" in this order, then the base's Deserialize.
    // A file first empties the model's binary data through the checked setter.
    void Deserialize(const std::string& options) override;

    // begin, the four numbers of rect, then path, binary data and type of the backbone,
    // then of the head, all exactly; confidenceThreshold takes no part.
    bool operator==(const SettingsAnalyzerVideoTrackObjectOnnxRT& other) const;
    bool operator!=(const SettingsAnalyzerVideoTrackObjectOnnxRT& other) const;

    // Each fails with AnalyzerException when the other member of that model is not empty,
    // whatever the argument holds.
    void SetBackboneModelPath(const std::string& path);
    void SetBackboneModelBinaryData(const std::string& data);
    void SetHeadModelPath(const std::string& path);
    void SetHeadModelBinaryData(const std::string& data);
    // Unchecked.
    void SetBackboneModelType(NeuralNetworkModelInfo::ExecutorType type);
    void SetHeadModelType(NeuralNetworkModelInfo::ExecutorType type);

    const NeuralNetworkModelInfo& GetBackboneModelInfo() const;
    const NeuralNetworkModelInfo& GetHeadModelInfo() const;

    // Plain: no check, no range.
    void SetConfidenceThreshold(float value);
    float GetConfidenceThreshold() const;

private:
    NeuralNetworkModelInfo backboneModelInfo; // neutral default: no model, CPU
    NeuralNetworkModelInfo headModelInfo;     // neutral default: no model, CPU
    float confidenceThreshold = 0.5F;         // neutral default: the midpoint of a 0..1 score
};

} // namespace Zorvan::Proc
