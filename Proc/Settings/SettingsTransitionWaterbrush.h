#pragma once
#include <cstdint>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc {

// Brush strokes of water. Keeps the base IsEqualTo (it throws) and IsEmpty (never empty).
class ZORVAN_SETTINGS_EXPORT SettingsTransitionWaterbrush : public Settings {
public:
    // The renderer gives the numbers their meaning; any number is stored as given.
    enum class Type : std::int32_t {};

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "angle", "size", "rough", "type", in this order, each a whole number stored unchecked.
    void Deserialize(const std::string& options) override;

    void SetAngle(int value) { angle = value; }
    void SetSize(unsigned int value) { size = value; }
    void SetRough(unsigned int value) { rough = value; }
    void SetType(Type value) { type = value; }
    int GetAngle() const { return angle; }
    unsigned int GetSize() const { return size; }
    unsigned int GetRough() const { return rough; }
    Type GetType() const { return type; }

private:
    // No defaults are fixed for this transition: 0 throughout.
    std::int32_t angle = 0;
    std::uint32_t size = 0U;
    std::uint32_t rough = 0U;
    Type type{};
};

} // namespace Zorvan::Proc
