#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/SettingsAnalyzerVideoTrackObjectBase.h"

namespace Zorvan::Proc {

// An overlay that follows the boxes of an object tracker: the tracker's result, shared and
// never changed here, and the look of the mark. Keeps the base's IsEqualTo.
class ZORVAN_SETTINGS_EXPORT SettingsEffectAim : public Settings {
public:
    static const std::string CLASS_ID;

    using Result = SettingsAnalyzerVideoTrackObjectBase::Result;

    // The mark's shape, 0 or 1; the renderer gives the numbers their meaning.
    enum class Type : std::int32_t {};

    // Holds an empty tracking result, not an empty pointer, so that IsEmpty can be asked.
    SettingsEffectAim();

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // True when the held result has no boxes. The result must be set.
    bool IsEmpty() const override;
    // Map form: "type" (std::stoi; outside 0 and 1 throws SettingsException "Invalid type
    // value"), then "thickness", "crossLen", "radius" (std::stof), stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetBBoxStream(const std::shared_ptr<const Result>& stream);
    const std::shared_ptr<const Result>& GetBBoxStream() const;
    void SetType(Type value);
    Type GetType() const;
    void SetThickness(float value);
    float GetThickness() const;
    void SetCrossLen(float value);
    float GetCrossLen() const;
    void SetRadius(float value);
    float GetRadius() const;

private:
    std::shared_ptr<const Result> bboxStream;
    Type type{0};
    // Neutral defaults: a mark of no size draws nothing.
    float thickness = 0.0F;
    float crossLen = 0.0F;
    float radius = 0.0F;
};

} // namespace Zorvan::Proc
