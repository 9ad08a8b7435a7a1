#pragma once

#include <functional>

#include "platform/print/document.h"
#include "platform/print/font_table.h"
#include "platform/print/line_breaker.h"

namespace tendo {

/// The height of a line at a line spacing. Spacing alone makes no line higher than a quarter page.
int SpacedHeight(int single, int percent);

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
    /// The same where a page is full: a heading with nothing written beneath it goes along. What
    /// `onOpen` writes breaks no page.
    void BreakPage();

    /// Puts a filled box on the page. One across the page with the pen on it is the bar of a
    /// heading.
    void PlaceBar(const BoxItem& bar);
    /// The bar that waits for its heading; null when there is none.
    const BoxItem* OpenBar() const;
    /// Makes the open bar at least that high, downwards.
    void GrowBar(int height);
    /// Enters the heading that was just written on the open bar into the outline.
    void EnterHeading(const std::string& title);

    bool HasPage() const { return !document_.pages.empty(); }
    int PageNumber() const { return static_cast<int>(document_.pages.size()); }
    bool Fits(int height) const { return y + height <= page_geometry::Bottom; }
    /// What `BreakPage` leaves for the text, but for what the new page's own header takes.
    int RoomBehindBreak() const;
    Page& Current() { return document_.pages.back(); }
    Document& Doc() { return document_; }
    FontTable& Fonts() { return fonts_; }

    /// Puts a line with its upper edge at `top`.
    void AddLine(const TextLine& line, double left, int top);

    int x = page_geometry::Left;
    int y = page_geometry::Top;

  private:
    /// The bar placed last, its heading's texts, and where the pen was when it was placed.
    struct Heading {
        BoxItem bar;
        int page = 0;
        std::size_t shape = 0, texts = 0;  // shapes and texts ahead of it
        std::size_t ownTexts = 0;
        int pen = 0;
    };

    void OpenPage();
    /// A first page ahead of all headings stands in the outline under its first line.
    void EnterTitlePage();
    bool HeadingStandsAlone() const;
    std::vector<TextItem> LiftHeading();
    void PutDown(const Heading& heading, std::vector<TextItem> texts, int penBehind);

    FontTable& fonts_;
    Heading heading_;
    bool opening_ = false;
    Document document_;
};

}  // namespace tendo
