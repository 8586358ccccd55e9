#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "Proc/Settings/Settings.h"
#include "imported/LUTInt.h"

namespace Zorvan::Proc {

// A three-dimensional colour lookup table and how to interpolate between its entries. The
// table arrives only through SetTable and is shared, not copied, by clones.
class ZORVAN_SETTINGS_EXPORT SettingsEffectLUT : public Settings {
public:
    // Outside code and saved projects use the numbers, not the enumerator names.
    enum class InterpolateMode : std::uint32_t {
        Nearest = 0,
        Trilinear = 1,
        Tetrahedral = 2,
    };

    static const std::string CLASS_ID;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // No table, or a table that is not valid.
    bool IsEmpty() const override;
    // Accepts any string and changes nothing: a table does not fit in an option string.
    void Deserialize(const std::string& options) override;

    // Without a table on either side, equal only when neither has one; else the tables must
    // be equal, and then the modes.
    bool operator==(const SettingsEffectLUT& other) const;
    bool operator!=(const SettingsEffectLUT& other) const;

    void SetTable(std::shared_ptr<LUT::LUTTable> table); // shares the table
    const std::shared_ptr<LUT::LUTTable>& GetTable() const;
    // The entry at (r, g, b), as the table gives it. A table must be set.
    std::array<float, 3> GetPoint(unsigned long r, unsigned long g, unsigned long b) const;
    // The table's size. A table must be set.
    std::size_t GetSize() const;

    // A value above 2 raises EffectException "Invalid interpolate mode"; the mode stays.
    void SetMode(InterpolateMode mode);
    InterpolateMode GetMode() const;

private:
    std::shared_ptr<LUT::LUTTable> table;            // none: the stage changes nothing
    InterpolateMode mode = InterpolateMode::Nearest; // default: the first enumerator
};

} // namespace Zorvan::Proc
