#include "pricing/price_reason_details.h"

namespace tendo {

PriceOrigin CauseOf(FieldKind percentage) {
    if (percentage == FieldKind::PriceMarkup) return PriceOrigin::FromMarkup;
    if (percentage == FieldKind::ListDiscount) return PriceOrigin::FromDiscount;
    return PriceOrigin::FromMargin;
}

const char* PriceSourceOf(PriceOrigin origin, const char* otherwise) {
    switch (origin) {
        case PriceOrigin::Entered:
            return "entered";
        case PriceOrigin::FromMargin:
            return "follows from the gross margin";
        case PriceOrigin::FromMarkup:
            return "follows from the price markup";
        case PriceOrigin::FromDiscount:
            return "follows from the list discount";
        case PriceOrigin::FromDefaultMargin:
            return "follows from your default margin";
        default:
            return otherwise;
    }
}

}  // namespace tendo
