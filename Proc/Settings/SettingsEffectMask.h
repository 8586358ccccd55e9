#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "Proc/Settings/Settings.h"
#include "Proc/Settings/Types.h"

namespace Zorvan::Proc {

// A mask over the frame as a function of time: a list of functors, each of which makes the
// mask shape of a moment (or none), and two packed colours for the area outside the mask and
// for its outline. The engine animates a mask by handing in its own functors; option strings
// describe one static rectangle. The numbered selectors and the fixed parameters mean what the
// renderer makes of them; the record only carries them. Keeps the base's IsEqualTo and IsEmpty.
class ZORVAN_SETTINGS_EXPORT SettingsEffectMask : public Settings {
public:
    // One mask shape: the unit shape moved into the frame by `matrix` (row by row, the
    // translation in the third row).
    struct FrameMask {
        std::int32_t shape = 0;
        std::array<double, 9> matrix{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0}; // identity: the whole frame
        std::int32_t method = 0;
        double weight = 1.0;
        bool flag = false;
        std::uint64_t extra = 0;
    };

    // The mask at a time; an empty pointer means no mask at that time.
    using FrameFunctor = std::function<std::unique_ptr<FrameMask>(double time)>;

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    // Keys "x", "y", "w", "h" (doubles; absent: 0, 0, 1, 1) and "type", "shape", "method"
    // (unsigned; out of range or absent: type 0, shape 0, method 2). Builds one functor that
    // always returns that rectangle, replacing every functor, and stores "type" and "method"
    // in the record, so any non-empty string rewrites both. The colours stay.
    void Deserialize(const std::string& options) override;

    // Each channel in 0..1 or EffectException "Invalid <channel> channel!", checked red,
    // green, blue, alpha; a refused colour keeps the old one. Packed red lowest, alpha highest.
    void SetBackGColor(float red, float green, float blue, float alpha);
    void SetFrameColor(float red, float green, float blue, float alpha);
    void SetFrameFunctors(const std::vector<FrameFunctor>& functors);

    // Every functor called in order with the time; the masks they return, empty ones left
    // out. An empty functor throws std::bad_function_call.
    std::vector<std::unique_ptr<FrameMask>> GetFrames(double time) const;

    const std::vector<FrameFunctor>& GetFrameFunctors() const;
    std::int32_t GetType() const;
    double GetFixedParam1() const;
    double GetFixedParam2() const;
    double GetFixedParam3() const;
    double GetFixedParam4() const;
    std::int32_t GetMethod() const;
    Color GetBackGColor() const;
    Color GetFrameColor() const;

private:
    std::vector<FrameFunctor> frameFunctors;
    std::int32_t type = 1;
    // The renderer's fixed parameters: no operation changes them.
    double fixedParam1 = 0.077;
    double fixedParam2 = 0.9;
    double fixedParam3 = 0.04;
    double fixedParam4 = 0.8;
    std::int32_t method = 0;
    Color backGColor = 0xFF000000U; // opaque black
    Color frameColor = 0xFFFFFFFFU; // opaque white
};

} // namespace Zorvan::Proc
