#include "Proc/Settings/SettingsEffect360Cylindrical.h"

#include <cmath>
#include <limits>

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

namespace {

bool WithinEpsilon(double a, double b)
{
    return std::abs(a - b) < std::numeric_limits<double>::epsilon();
}

} // namespace

const std::string SettingsEffect360Cylindrical::CLASS_ID ZORVAN_INIT_STRINGS = "SettingsEffect360Cylindrical";

const std::string& SettingsEffect360Cylindrical::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsEffect360Cylindrical::Clone() const
{
    return std::make_unique<SettingsEffect360Cylindrical>(*this);
}

bool SettingsEffect360Cylindrical::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsEffect360Cylindrical&>(other);
}

bool SettingsEffect360Cylindrical::IsEmpty() const
{
    return !enabled || (NearZero(fi) && NearZero(tetta) && NearZero(zoom));
}

bool SettingsEffect360Cylindrical::operator==(const SettingsEffect360Cylindrical& other) const
{
    if (!enabled && !other.enabled) {
        return true;
    }
    return enabled == other.enabled && WithinEpsilon(fi, other.fi) && WithinEpsilon(tetta, other.tetta) &&
           WithinEpsilon(zoom, other.zoom);
}

void SettingsEffect360Cylindrical::SetEnabled(bool value)
{
    enabled = value;
}

void SettingsEffect360Cylindrical::SetFi(double value)
{
    fi = value;
}

void SettingsEffect360Cylindrical::SetTetta(double value)
{
    tetta = value;
}

void SettingsEffect360Cylindrical::SetZoom(double value)
{
    zoom = value;
}

void SettingsEffect360Cylindrical::SetParams(double fi, double tetta, double zoom)
{
    SetFi(fi);
    SetTetta(tetta);
    SetZoom(zoom);
}

bool SettingsEffect360Cylindrical::GetEnabled() const
{
    return enabled;
}

double SettingsEffect360Cylindrical::GetFi() const
{
    return fi;
}

double SettingsEffect360Cylindrical::GetTetta() const
{
    return tetta;
}

double SettingsEffect360Cylindrical::GetZoom() const
{
    return zoom;
}

} // namespace Zorvan::Proc
