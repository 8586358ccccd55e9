#include "Proc/Settings/SettingsEffectColorCurves.h"

#include <array>
#include <bit>
#include <cmath>

#include "Proc/Settings/InitOrder.h"
#include "Proc/Settings/MapForm.h"
#include "Proc/Settings/Saturate.h"
#include "imported/Utils.h"

namespace Zorvan::Proc::Curve {

namespace {

// The tolerance of IsEqualPoints, the float 0.0001 (bits 0x38D1B717).
constexpr float kPointTolerance = std::bit_cast<float>(std::uint32_t{0x38D1B717U});

} // namespace

CurvePoints::CurvePoints(std::pair<float, float> domain, std::vector<float> newPoints)
    : domainLow(domain.first)
    , domainHigh(domain.second)
    , points(std::move(newPoints))
{
    if (domainHigh < domainLow) {
        std::swap(domainLow, domainHigh);
    }
    domainLow = Saturate(domainLow, 0.0F, 1.0F);
    domainHigh = Saturate(domainHigh, 0.0F, 1.0F);
}

bool CurvePoints::IsEqualPoints(const CurvePoints& other) const
{
    if (points.size() != other.points.size()) {
        return false;
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!(std::fabs(points[i] - other.points[i]) < kPointTolerance)) {
            return false;
        }
    }
    return true;
}

bool CurvePoints::operator==(const CurvePoints& other) const
{
    return IsEqualPoints(other) && domainLow == other.domainLow && domainHigh == other.domainHigh;
}

float CurvePoints::GetDomainLow() const
{
    return domainLow;
}

float CurvePoints::GetDomainHigh() const
{
    return domainHigh;
}

std::pair<float, float> CurvePoints::GetDomain() const
{
    return {domainLow, domainHigh};
}

const std::vector<float>& CurvePoints::GetPoints() const
{
    return points;
}

} // namespace Zorvan::Proc::Curve

namespace Zorvan::Proc {

const std::string SettingsEffectColorCurves::CLASS_ID ZORVAN_INIT_STRINGS = "EffectColorCurves";

const std::string SettingsEffectColorCurves::s_rgbCurve ZORVAN_INIT_STRINGS = "rgb-curve";
const std::string SettingsEffectColorCurves::s_redCurve ZORVAN_INIT_STRINGS = "red-curve";
const std::string SettingsEffectColorCurves::s_greenCurve ZORVAN_INIT_STRINGS = "green-curve";
const std::string SettingsEffectColorCurves::s_blueCurve ZORVAN_INIT_STRINGS = "blue-curve";
const std::string SettingsEffectColorCurves::s_rgbDomain ZORVAN_INIT_STRINGS = "rgb-domain";
const std::string SettingsEffectColorCurves::s_redDomain ZORVAN_INIT_STRINGS = "red-domain";
const std::string SettingsEffectColorCurves::s_greenDomain ZORVAN_INIT_STRINGS = "green-domain";
const std::string SettingsEffectColorCurves::s_blueDomain ZORVAN_INIT_STRINGS = "blue-domain";

const std::vector<std::string> SettingsEffectColorCurves::s_params ZORVAN_INIT_PARAMS = {
    s_rgbCurve, s_redCurve, s_greenCurve, s_blueCurve, s_rgbDomain, s_redDomain, s_greenDomain, s_blueDomain,
};

const std::string& SettingsEffectColorCurves::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffectColorCurves::Clone() const
{
    return std::make_unique<SettingsEffectColorCurves>(*this);
}

bool SettingsEffectColorCurves::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffectColorCurves&>(other);
}

bool SettingsEffectColorCurves::IsEmpty() const
{
    return curves.empty();
}

void SettingsEffectColorCurves::Deserialize(const std::string& options)
{
    if (options.empty()) {
        return;
    }
    const auto map = GetOptionsMap(options, s_params);
    struct Keys {
        CurveType type;
        const std::string& curve;
        const std::string& domain;
    };
    const std::array<Keys, 4> order{{
        {CurveType::Rgb, s_rgbCurve, s_rgbDomain},
        {CurveType::Red, s_redCurve, s_redDomain},
        {CurveType::Green, s_greenCurve, s_greenDomain},
        {CurveType::Blue, s_blueCurve, s_blueDomain},
    }};
    for (const auto& keys : order) {
        const std::string* curveText = MapForm::FindText(map, keys.curve);
        if (curveText == nullptr) {
            continue;
        }
        const auto domain = DeserializeDomain(map, keys.domain);
        SetCurve(keys.type, domain, DeserializeFloats(*curveText));
    }
}

bool SettingsEffectColorCurves::operator==(const SettingsEffectColorCurves& other) const
{
    if (curves.size() != other.curves.size()) {
        return false;
    }
    // Side by side in iteration order, no lookup by key: kept on purpose, the engine has always
    // compared curves so.
    auto mine = curves.begin();
    auto theirs = other.curves.begin();
    for (; mine != curves.end() && theirs != other.curves.end(); ++mine, ++theirs) {
        if (mine->first != theirs->first) {
            return false;
        }
        const Curve::CurvePoints& left = *mine->second;
        const Curve::CurvePoints& right = *theirs->second;
        if (!left.IsEqualPoints(right) || left.GetDomainLow() != right.GetDomainLow() ||
            left.GetDomainHigh() != right.GetDomainHigh()) {
            return false;
        }
    }
    return true;
}

SettingsEffectColorCurves::Curves SettingsEffectColorCurves::GetCurves() const
{
    return curves;
}

std::shared_ptr<const Curve::CurvePoints> SettingsEffectColorCurves::GetCurve(CurveType type) const
{
    const auto found = curves.find(type);
    return found != curves.end() ? found->second : nullptr;
}

void SettingsEffectColorCurves::SetCurve(CurveType type, std::pair<float, float> domain,
                                         const std::vector<float>& points)
{
    if (points.size() < 2) {
        RemoveCurve(type);
        return;
    }
    curves[type] = std::make_shared<const Curve::CurvePoints>(domain, points);
}

void SettingsEffectColorCurves::RemoveCurve(CurveType type)
{
    curves.erase(type);
}

std::vector<float> SettingsEffectColorCurves::DeserializeFloats(const std::string& text)
{
    std::vector<std::string> pieces;
    Core::Utils::SplitString(pieces, Core::Utils::RemoveQuotes(text), ',');
    std::vector<float> values;
    values.reserve(pieces.size());
    for (const auto& piece : pieces) {
        values.push_back(std::stof(piece));
    }
    return values;
}

std::pair<float, float> SettingsEffectColorCurves::DeserializeDomain(const OptionsMap& map, const std::string& key)
{
    const std::string* text = MapForm::FindText(map, key);
    if (text == nullptr) {
        return {0.0F, 1.0F};
    }
    const auto values = DeserializeFloats(*text);
    if (values.size() != 2) {
        return {0.0F, 1.0F};
    }
    return {values[0], values[1]};
}

} // namespace Zorvan::Proc
