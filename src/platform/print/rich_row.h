#pragma once

#include "platform/print/page_flow.h"
#include "platform/print/rich_model.h"

namespace tendo {

/// Where the rows of a rich text's table stand, in twips; lines are `lineSpacing` percent apart.
struct RichRowPlace {
    int left = 0, width = 0;
    int lineSpacing = 100;
};

/// Writes a row of a rich text's table, each cell broken within its own width. A row that doesn't
/// fit goes to the next page; one higher than a page goes on over pages.
void WriteRichRow(PageFlow& flow, const RichParagraph& row, const RichRowPlace& place);

}  // namespace tendo
