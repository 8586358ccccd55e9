#pragma once
#include "Proc/Settings/AIFrameGeneratorSettings.h"
#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// The stage that slows a stream down with frames that a neural network generates between the source frames. Its
// settings are those of the frame generator, reached through the accessors below; the generator is no public base, so
// the record is a Settings only. Overrides IsEqualTo and Deserialize; keeps the base's IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsFilterSlowMotion : private AIFrameGeneratorSettings, public Settings {
public:
    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // The frame generator's keys: "nnm_file", "nnm_type", "resize_method", "resize_percents".
    void Deserialize(const std::string& options) override;

    // Model (path, data, executor), resize method and resize percents, all exact.
    bool operator==(const SettingsFilterSlowMotion& other) const;

    using AIFrameGeneratorSettings::GetModelInfo;
    using AIFrameGeneratorSettings::GetResizeMethod;
    using AIFrameGeneratorSettings::GetResizePercents;
    using AIFrameGeneratorSettings::SetModelBinaryData;
    using AIFrameGeneratorSettings::SetModelPath;
    using AIFrameGeneratorSettings::SetModelType;
    using AIFrameGeneratorSettings::SetResizeMethod;
    using AIFrameGeneratorSettings::SetResizePercents;
};

} // namespace Zorvan::Proc
