#include "Proc/Settings/SettingsTransitionSmear.h"

#include <algorithm>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/IntegerKeys.h"
#include "Proc/Settings/ProcException.h"

namespace Zorvan::Proc {

const std::string SettingsTransitionSmear::CLASS_ID ZORVAN_INIT_STRINGS = "$$TransitionSmear$$";

const std::string& SettingsTransitionSmear::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsTransitionSmear::Clone() const
{
    return std::make_unique<SettingsTransitionSmear>(*this);
}

void SettingsTransitionSmear::Deserialize(const std::string& options)
{
    ReadIntegerKeys(options, IntegerKey{"direction", direction});
}

// The renderer relies on `first` following a and `second` following b as written here: the two
// are not mirror images of each other.
void SettingsTransitionSmear::GetMatrices(float* first, float* second, float progress) const
{
    const double wide = progress;
    const double rising = std::clamp(2.0 * wide, 0.0, 1.0);
    const double falling = std::clamp((wide - 1.0) * -2.0, 0.0, 1.0);
    const auto index = static_cast<std::uint32_t>(direction); // a negative number fails too
    if (index > 7U) {
        ThrowLogicError("Incorrect value passed, use enumerated value");
    }
    const auto a = static_cast<float>(rising);
    const auto b = static_cast<float>(falling);
    const auto a2 = static_cast<float>(static_cast<double>(a) / 1.4142135623730951);
    const auto b2 = static_cast<float>(static_cast<double>(b) / 1.4142135623730951);
    std::fill_n(first, 9, 0.0F);
    std::fill_n(second, 9, 0.0F);
    switch (index) {
    case 0:
        first[4] = a;
        second[4] = b;
        second[7] = -b;
        break;
    case 1:
        first[0] = a;
        first[6] = -a;
        second[0] = b;
        break;
    case 2:
        first[0] = a2;
        first[4] = a2;
        first[6] = -a2;
        second[0] = b2;
        second[4] = b2;
        second[7] = -b2;
        break;
    case 3:
        first[0] = a;
        second[0] = b;
        second[6] = -b;
        break;
    case 4:
        first[0] = a2;
        first[4] = a2;
        first[7] = -a2;
        second[0] = b2;
        second[4] = b2;
        second[6] = -b2;
        break;
    case 5:
        first[4] = a;
        first[7] = -a;
        second[4] = b;
        break;
    case 6:
        first[0] = a2;
        first[4] = a2;
        second[0] = b2;
        second[4] = b2;
        second[6] = -b2;
        second[7] = -b2;
        break;
    default: // 7
        first[0] = a2;
        first[4] = a2;
        first[6] = -a2;
        first[7] = -a2;
        second[0] = b2;
        second[4] = b2;
        break;
    }
}

} // namespace Zorvan::Proc
