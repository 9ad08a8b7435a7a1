#pragma once

#include <string>
#include <vector>

#include "platform/print/document_search.h"
#include "platform/qt/text_measurer_qt.h"
#include "reports/screens/page_view.h"

namespace tendo {

/// The places of a searched text in a document and which of them is the current one.
class PreviewSearch {
  public:
    /// Looks for the text; the current place is the first one on `page` or behind it.
    void Find(const Document& document, const std::string& text, int page);
    void Clear() { matches_.clear(); }
    /// To the next place (1) or the one before (-1), round the ends of the document.
    void Step(int direction);

    int Count() const { return static_cast<int>(matches_.size()); }
    /// -1 without any.
    int Current() const { return matches_.empty() ? -1 : current_; }
    /// The page of the current place, from 0; there must be one.
    int Page() const { return matches_[static_cast<std::size_t>(current_)].page; }
    /// The places on a page.
    std::vector<PageView::Mark> MarksOn(const Document& document, int page);

  private:
    std::vector<DocumentMatch> matches_;
    int current_ = 0;
    QtTextMeasurer measurer_;
};

}  // namespace tendo
