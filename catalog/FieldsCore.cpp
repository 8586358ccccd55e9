#include "Proc/Settings/SettingsEffectBlurGaussian.h"
#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsCore(FieldMap& fields)
{
    using Proc::SettingsEffectBlurGaussian;
    fields["SettingsEffectBlurGaussian"] = {
        Field<SettingsEffectBlurGaussian>("scale", &SettingsEffectBlurGaussian::GetScale),
        Field<SettingsEffectBlurGaussian>("fast", &SettingsEffectBlurGaussian::GetFast),
    };
}

} // namespace Zorvan::CatalogDetail
