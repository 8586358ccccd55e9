#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Proc/Settings/Settings.h"

namespace Zorvan::Proc::Curve {

// One tone curve, immutable after construction and shared between clones: a value domain
// (low, high, each within 0..1, low not above high) and the float samples.
class ZORVAN_SETTINGS_EXPORT CurvePoints {
public:
    // The smaller of the pair becomes domain low and the larger domain high, whichever order
    // they came in; each is then clamped to 0..1. The points are copied as given.
    CurvePoints(std::pair<float, float> domain, std::vector<float> points);

    // The same number of points, each pair differing by strictly less than the float 0.0001
    // (bits 0x38D1B717). The domain is ignored.
    bool IsEqualPoints(const CurvePoints& other) const;
    // IsEqualPoints, and both domain values exactly equal.
    bool operator==(const CurvePoints& other) const;

    float GetDomainLow() const;
    float GetDomainHigh() const;
    // (domain low, domain high).
    std::pair<float, float> GetDomain() const;
    const std::vector<float>& GetPoints() const;

private:
    float domainLow;
    float domainHigh;
    std::vector<float> points;
};

} // namespace Zorvan::Proc::Curve

namespace Zorvan::Proc {

// Up to four tone curves, one master and one per colour channel, each a shared pointer to an
// immutable Curve::CurvePoints. Clone copies the map and shares the curves.
class ZORVAN_SETTINGS_EXPORT SettingsEffectColorCurves : public Settings {
public:
    enum class CurveType : std::int32_t {
        Rgb = 0,
        Red = 1,
        Green = 2,
        Blue = 3,
    };
    using Curves = std::unordered_map<CurveType, std::shared_ptr<const Curve::CurvePoints>>;

    static const std::string CLASS_ID;

    static const std::string s_rgbCurve;    // "rgb-curve"
    static const std::string s_redCurve;    // "red-curve"
    static const std::string s_greenCurve;  // "green-curve"
    static const std::string s_blueCurve;   // "blue-curve"
    static const std::string s_rgbDomain;   // "rgb-domain"
    static const std::string s_redDomain;   // "red-domain"
    static const std::string s_greenDomain; // "green-domain"
    static const std::string s_blueDomain;  // "blue-domain"
    // The eight keys in the order above, built at library load after the strings.
    static const std::vector<std::string> s_params;

    const std::string& GetClassId() const override;
    std::unique_ptr<Settings> Clone() const override;
    bool IsEqualTo(const Settings& other) const override;
    // The map has no entry; a stored identity curve is not empty.
    bool IsEmpty() const override;
    // Map form over s_params. For RGB, red, green, blue in this order: an absent curve key
    // does nothing (its domain key is then not looked at); a present one is read with
    // DeserializeDomain (the type's domain key) and DeserializeFloats (the curve key) and
    // handed to SetCurve, so that fewer than two numbers remove the curve. A piece that is
    // not a number throws the conversion's exception; curves set earlier in the call stay.
    void Deserialize(const std::string& options) override;

    // Sizes differ: not equal; both empty: equal. Otherwise the two maps are walked side by
    // side in their iteration order, without lookup by key: at each step the types must be
    // equal, the points must pass IsEqualPoints and both domain values must be exactly
    // equal. Records that hold the same curves but iterate differently can compare unequal.
    bool operator==(const SettingsEffectColorCurves& other) const;

    // A copy of the map.
    Curves GetCurves() const;
    // The curve of that type, or an empty pointer.
    std::shared_ptr<const Curve::CurvePoints> GetCurve(CurveType type) const;
    // Fewer than two points: removes the curve of that type, as RemoveCurve does. Otherwise a
    // new Curve::CurvePoints replaces any earlier curve of that type.
    void SetCurve(CurveType type, std::pair<float, float> domain, const std::vector<float>& points);
    // Erases the entry of that type if there is one.
    void RemoveCurve(CurveType type);

    // Removes one enclosing pair of quotes (Core::Utils::RemoveQuotes), splits the rest at
    // every comma (Core::Utils::SplitString) and converts each piece with std::stof, which
    // reads its longest valid prefix. An empty piece throws std::invalid_argument; an empty
    // text gives no number.
    static std::vector<float> DeserializeFloats(const std::string& text);
    // The key absent, or its value not holding exactly two floats: (0.0, 1.0). Otherwise the
    // two floats in the order given. A value that cannot be converted still throws.
    static std::pair<float, float> DeserializeDomain(const OptionsMap& map, const std::string& key);

private:
    Curves curves; // empty by default
};

} // namespace Zorvan::Proc
