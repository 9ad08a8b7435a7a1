#pragma once

#include <functional>

#include "platform/print/document.h"
#include "platform/print/font_table.h"
#include "platform/print/line_breaker.h"

namespace tendo {

/// The pages of a document under work and the pen on them: opens, closes and counts pages.
class PageFlow {
  public:
    explicit PageFlow(FontTable& fonts) : fonts_(fonts) {}

    /// Called for the page about to be left, and for the page just opened.
    std::function<void()> onClose, onOpen;

    void Begin();
    void End();
    /// Opens the first page when there is none.
    void EnsurePage();
    /// Ends the page, opening an empty first one when there is none, and opens the next.
    void NewPage();

    bool HasPage() const { return !document_.pages.empty(); }
    int PageNumber() const { return static_cast<int>(document_.pages.size()); }
    bool Fits(int height) const { return y + height <= page_geometry::Bottom; }
    Page& Current() { return document_.pages.back(); }
    Document& Doc() { return document_; }
    FontTable& Fonts() { return fonts_; }

    /// Puts a line with its upper edge at `top`.
    void AddLine(const TextLine& line, double left, int top);

    int x = page_geometry::Left;
    int y = page_geometry::Top;

  private:
    void OpenPage();

    FontTable& fonts_;
    Document document_;
};

}  // namespace tendo
