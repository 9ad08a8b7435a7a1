#include "platform/qt/painter_pdf_outline.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/text/text.h"

namespace tendo {

namespace {

/// The first number of a text behind white space; -1 when there is none.
int FirstNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \r\n"), text.size()));
    int number = -1;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// The number behind a key of a dictionary, "/Root 1 0 R" gives 1; -1 without the key.
int NumberBehind(std::string_view text, std::string_view key) {
    const std::size_t at = text.find(key);
    return at == std::string_view::npos ? -1 : FirstNumber(text.substr(at + key.size()));
}

/// The dictionary of an object, with its brackets; empty when there is none.
std::string_view ObjectText(std::string_view pdf, int number) {
    std::string head = std::to_string(number);
    head.insert(0, 1, '\n');
    head += " 0 obj";
    const std::size_t start = pdf.rfind(head);
    if (start == std::string_view::npos) return {};
    const std::size_t end = pdf.find("endobj", start);
    if (end == std::string_view::npos) return {};
    const std::string_view object = pdf.substr(start, end - start);
    const std::size_t open = object.find("<<"), close = object.rfind(">>");
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return {};
    return object.substr(open, close + 2 - open);
}

/// A text as a PDF string in UTF-16, as hexadecimal digits.
std::string PdfString(std::string_view text) {
    static constexpr char Digits[] = "0123456789ABCDEF";
    std::string hex = "<FEFF";
    const auto add = [&](char32_t unit) {
        for (int shift = 12; shift >= 0; shift -= 4)
            hex += Digits[(unit >> shift) & 0xF];
    };
    for (const char32_t point : ToCodePoints(text)) {
        if (point < 0x10000) {
            add(point);
        } else {
            add(0xD800 + ((point - 0x10000) >> 10));
            add(0xDC00 + ((point - 0x10000) & 0x3FF));
        }
    }
    return hex + ">";
}

std::string Reference(int number) {
    return std::to_string(number) + " 0 R";
}

class PdfUpdate {
  public:
    PdfUpdate(std::string pdf, const Document& document)
        : pdf_(std::move(pdf)), document_(document) {}

    std::string Write() {
        const std::size_t trailer = pdf_.rfind("trailer");
        if (trailer == std::string::npos) return std::move(pdf_);
        const std::string_view tail = std::string_view(pdf_).substr(trailer);
        root_ = NumberBehind(tail, "/Root");
        info_ = NumberBehind(tail, "/Info");
        size_ = NumberBehind(tail, "/Size");
        previous_ = NumberBehind(tail, "startxref");
        const std::string catalog(ObjectText(pdf_, root_)), info(ObjectText(pdf_, info_));
        const std::vector<int> pages = PageObjects(catalog);
        if (catalog.empty() || info.empty() || size_ <= 0 || previous_ <= 0 || pages.empty())
            return std::move(pdf_);
        nextObject_ = size_;
        AddObject(info_, Extended(info, "/Author " + PdfString(document_.author)));
        if (!document_.outline.empty()) AddOutline(catalog, pages);
        AddTables();
        return std::move(pdf_);
    }

  private:
    struct Written {
        int number;
        std::size_t offset;
    };

    static std::string Extended(const std::string& dictionary, const std::string& entries) {
        return dictionary.substr(0, dictionary.size() - 2) + "\n" + entries + "\n>>";
    }

    std::vector<int> PageObjects(std::string_view catalog) const {
        const std::string_view tree = ObjectText(pdf_, NumberBehind(catalog, "/Pages"));
        std::vector<int> pages;
        const std::size_t open = tree.find('[');
        if (open == std::string_view::npos) return pages;
        std::string_view kids = tree.substr(open + 1, tree.find(']') - open - 1);
        for (std::size_t at = kids.find(" 0 R"); at != std::string_view::npos;
             at = kids.find(" 0 R")) {
            pages.push_back(FirstNumber(kids.substr(0, at)));
            kids.remove_prefix(at + 4);
        }
        return pages;
    }

    void AddObject(int number, const std::string& dictionary) {
        written_.push_back({number, pdf_.size()});
        pdf_ += std::to_string(number) + " 0 obj\n" + dictionary + "\nendobj\n";
    }

    void AddOutline(const std::string& catalog, const std::vector<int>& pages) {
        const int outlines = nextObject_++;
        const int first = nextObject_;
        const int count = static_cast<int>(document_.outline.size());
        nextObject_ += count;
        for (int i = 0; i < count; ++i) {
            const OutlineEntry& entry = document_.outline[static_cast<std::size_t>(i)];
            const auto page = std::min(static_cast<std::size_t>(entry.page), pages.size() - 1);
            const int top =
                (page_geometry::PaperHeight - page_geometry::PaperMargin - entry.y) / 20;
            std::string text = "<<\n/Title " + PdfString(entry.title) + "\n/Parent " +
                               Reference(outlines) + "\n/Dest [" + Reference(pages[page]) +
                               " /XYZ 0 " + std::to_string(top) + " 0]";
            if (i > 0) text += "\n/Prev " + Reference(first + i - 1);
            if (i + 1 < count) text += "\n/Next " + Reference(first + i + 1);
            AddObject(first + i, text + "\n>>");
        }
        AddObject(outlines, "<<\n/Type /Outlines\n/First " + Reference(first) + "\n/Last " +
                                Reference(first + count - 1) + "\n/Count " + std::to_string(count) +
                                "\n>>");
        AddObject(root_, Extended(catalog, "/Outlines " + Reference(outlines)));
    }

    /// One section of the cross-reference table for each object, in twenty bytes a line.
    void AddTables() {
        const std::size_t start = pdf_.size();
        std::sort(written_.begin(), written_.end(),
                  [](const Written& a, const Written& b) { return a.number < b.number; });
        pdf_ += "xref\n";
        for (const Written& object : written_) {
            std::string offset = std::to_string(object.offset);
            offset.insert(0, 10 - std::min<std::size_t>(offset.size(), 10), '0');
            pdf_ += std::to_string(object.number) + " 1\n" + offset + " 00000 n \n";
        }
        pdf_ += "trailer\n<<\n/Size " + std::to_string(nextObject_) + "\n/Root " +
                Reference(root_) + "\n/Info " + Reference(info_) + "\n/Prev " +
                std::to_string(previous_) + "\n>>\nstartxref\n" + std::to_string(start) +
                "\n%%EOF\n";
    }

    std::string pdf_;
    const Document& document_;
    int root_ = 0, info_ = 0, size_ = 0, previous_ = 0, nextObject_ = 0;
    std::vector<Written> written_;
};

}  // namespace

std::string WithPdfOutline(std::string pdf, const Document& document) {
    return PdfUpdate(std::move(pdf), document).Write();
}

}  // namespace tendo
