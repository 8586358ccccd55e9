#include "catalog/CatalogFields.h"

namespace Zorvan::CatalogDetail {

void AddFieldsPart_4_1(FieldMap& fields)
{
    (void)fields;
}

} // namespace Zorvan::CatalogDetail
