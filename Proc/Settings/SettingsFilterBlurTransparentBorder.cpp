#include "Proc/Settings/SettingsFilterBlurTransparentBorder.h"

#include "Proc/Settings/InitOrder.h"

namespace Zorvan::Proc {

const std::string SettingsFilterBlurTransparentBorder::CLASS_ID ZORVAN_INIT_STRINGS =
    "SettingsFilterBlurTransparentBorder";

SettingsFilterBlurTransparentBorder::SettingsFilterBlurTransparentBorder(int size)
{
    SetMatrixSize(size);
}

const std::string& SettingsFilterBlurTransparentBorder::GetClassId() const
{
    return CLASS_ID;
}

std::unique_ptr<Settings> SettingsFilterBlurTransparentBorder::Clone() const
{
    return std::make_unique<SettingsFilterBlurTransparentBorder>(*this);
}

bool SettingsFilterBlurTransparentBorder::IsEqualTo(const Settings& other) const
{
    return *this == dynamic_cast<const SettingsFilterBlurTransparentBorder&>(other);
}

bool SettingsFilterBlurTransparentBorder::operator==(const SettingsFilterBlurTransparentBorder& other) const
{
    return matrixSize == other.matrixSize;
}

void SettingsFilterBlurTransparentBorder::SetMatrixSize(int size)
{
    // INT_MAX is odd and kept, so the + 1 never overflows.
    matrixSize = (size > 0 && size % 2 == 1) ? size : size + 1;
}

int SettingsFilterBlurTransparentBorder::GetMatrixSize() const
{
    return matrixSize;
}

} // namespace Zorvan::Proc
