#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsPart_3_3(FieldMap& fields)
{
    (void)fields;
}

} // namespace Zorvan::CatalogDetail
