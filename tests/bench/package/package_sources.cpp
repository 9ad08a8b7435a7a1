#include "package/package_sources.h"

#include "package/package_text.h"

namespace tendo::bench {
namespace {

/// Letter, half an inch off the edges, ten points.
constexpr const char* groffHead =
    ".nr PO 0.5i\n.nr LL 7.5i\n.nr HM 0.7i\n.nr FM 0.6i\n.nr PS 10\n.nr VS 11.5p\n.ds FAM H\n"
    ".ds LH Larkmoor Heating & Air\n.ds CH\n.ds RH Page %\n.ds CF May 04, 1998\n.LP\n";

std::string GroffLine(const MaterialLine& line) {
    return line.number + "\tT{\n" + line.description + "\nT}\t" + line.quantity + "\t" +
           line.unitCost + "\t" + line.cost + "\n";
}

std::string GroffTable(const PackagePart& part) {
    std::string text = ".TS H\nlb lb rb rb rb\nlw(1.1i) lw(3.4i) rw(0.8i) rw(0.9i) rw(0.9i).\n";
    for (const char* head : TableHeads)
        text += (head == TableHeads[0] ? "" : "\t") + std::string(head);
    text += "\n.TH\n";
    for (const MaterialLine& line : part.lines)
        text += GroffLine(line);
    return text + ".TE\n";
}

std::string GroffNote(const Note& note) {
    std::string text = ".LP\n";
    for (const NoteRun& run : note)
        text += (run.bold ? "\\fB" : "\\fR") + run.text.substr(run.text.front() == ' ' ? 1 : 0) +
                "\\fR\n";
    return text;
}

constexpr const char* writerHead = R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.text">
<office:styles><style:default-style style:family="paragraph"><style:text-properties
 fo:font-family="'Liberation Sans'" fo:font-size="10pt"/></style:default-style></office:styles>
<office:automatic-styles>
<style:page-layout style:name="letter"><style:page-layout-properties fo:page-width="8.5in"
 fo:page-height="11in" fo:margin="0.5in"/><style:header-style/><style:footer-style/></style:page-layout>
<style:style style:name="heading" style:family="paragraph"><style:paragraph-properties
 fo:break-before="page" fo:background-color="#c0ffff"/><style:text-properties fo:font-size="14pt"
 fo:font-weight="bold"/></style:style>
<style:style style:name="right" style:family="paragraph"><style:paragraph-properties
 fo:text-align="end"/></style:style>
<style:style style:name="bold" style:family="text"><style:text-properties fo:font-weight="bold"/></style:style>
<style:style style:name="c1" style:family="table-column"><style:table-column-properties
 style:column-width="1.1in"/></style:style>
<style:style style:name="c2" style:family="table-column"><style:table-column-properties
 style:column-width="3.6in"/></style:style>
<style:style style:name="c3" style:family="table-column"><style:table-column-properties
 style:column-width="0.9in"/></style:style>
<style:style style:name="cell" style:family="table-cell"><style:table-cell-properties
 fo:padding="0.024in"/></style:style>
</office:automatic-styles>
<office:master-styles><style:master-page style:name="Standard" style:page-layout-name="letter">
<style:header><text:p>Larkmoor Heating &amp; Air, page <text:page-number/></text:p></style:header>
<style:footer><text:p>May 04, 1998</text:p></style:footer>
</style:master-page></office:master-styles>
<office:body><office:text>
)";
constexpr const char* writerTail = "</office:text></office:body></office:document>\n";

std::string WriterCell(const std::string& text, bool right, bool bold) {
    const std::string inner =
        bold ? "<text:span text:style-name=\"bold\">" + text + "</text:span>" : text;
    return "<table:table-cell table:style-name=\"cell\"><text:p" +
           std::string(right ? " text:style-name=\"right\"" : "") + ">" + inner +
           "</text:p></table:table-cell>";
}

std::string WriterTable(const PackagePart& part) {
    std::string text =
        "<table:table><table:table-column table:style-name=\"c1\"/><table:table-column "
        "table:style-name=\"c2\"/><table:table-column table:style-name=\"c3\" "
        "table:number-columns-repeated=\"3\"/><table:table-header-rows><table:table-row>";
    int column = 0;
    for (const char* head : TableHeads)
        text += WriterCell(head, column++ > 1, true);
    text += "</table:table-row></table:table-header-rows>\n";
    for (const MaterialLine& line : part.lines)
        text += "<table:table-row>" + WriterCell(line.number, false, false) +
                WriterCell(line.description, false, false) +
                WriterCell(line.quantity, true, false) + WriterCell(line.unitCost, true, false) +
                WriterCell(line.cost, true, false) + "</table:table-row>\n";
    return text + "</table:table>\n";
}

std::string WriterNote(const Note& note) {
    std::string text = "<text:p>";
    for (const NoteRun& run : note)
        text += run.bold ? "<text:span text:style-name=\"bold\">" + run.text + "</text:span>"
                         : run.text;
    return text + "</text:p>\n";
}

}  // namespace

std::string GroffSource() {
    std::string text = groffHead;
    for (const PackagePart& part : PackageText()) {
        text += ".bp\n.SH\n" + part.heading + "\n" + GroffTable(part);
        for (const Note& note : part.notes)
            text += GroffNote(note);
    }
    return text;
}

std::string WriterSource() {
    std::string text = writerHead;
    for (const PackagePart& part : PackageText()) {
        text += "<text:p text:style-name=\"heading\">" + part.heading + "</text:p>\n" +
                WriterTable(part);
        for (const Note& note : part.notes)
            text += WriterNote(note);
    }
    return text + writerTail;
}

std::string EmptyGroffSource() {
    return groffHead;
}

std::string EmptyWriterSource() {
    return writerHead + std::string("<text:p/>") + writerTail;
}

}  // namespace tendo::bench
