#include "pricing/list_base.h"

#include "pricing/relations.h"

namespace tendo {

void RebuildTotalListBase(SystemTendosRecord& tendos) {
    tendos.TotalLDPrice =
        StoreSingle(static_cast<double>(tendos.ModelLDPrice) + tendos.TaxMatLDPrice +
                    tendos.NonTaxLDPrice + tendos.LaborLDPrice + tendos.TaxSalePrice);
}

}  // namespace tendo
