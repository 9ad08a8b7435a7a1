#!/usr/bin/env python3
"""Makes the workbooks of tests/data/office/books with LibreOffice, and beside each what LibreOffice's own
conversion to .csv gives. Run it by hand after a change of the books below; the results are kept in the tree."""

import pathlib
import subprocess
import tempfile
from xml.sax.saxutils import escape

TARGET = pathlib.Path(__file__).resolve().parent.parent / "tests/data/office/books"

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0" xmlns:number="urn:oasis:names:tc:opendocument:xmlns:datastyle:1.0"
 xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2" office:version="1.2"
 office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:automatic-styles>
<number:date-style style:name="N1"><number:year number:style="long"/><number:text>-</number:text><number:month number:style="long"/>
<number:text>-</number:text><number:day number:style="long"/></number:date-style>
<number:boolean-style style:name="N2"><number:boolean/></number:boolean-style>
<style:style style:name="truth" style:family="table-cell" style:data-style-name="N2"/>
<style:style style:name="date" style:family="table-cell" style:data-style-name="N1"/>
</office:automatic-styles><office:body><office:spreadsheet>"""
TAIL = "</office:spreadsheet></office:body></office:document>"


def cell(value):
    """None, a text, a number, True or False, ("date", iso), ("=", formula) or ("wide", text, columns)."""
    if value is None:
        return "<table:table-cell/>"
    if isinstance(value, bool):
        return f'<table:table-cell table:style-name="truth" office:value-type="boolean" office:boolean-value="{str(value).lower()}"/>'
    if isinstance(value, (int, float)):
        return f'<table:table-cell office:value-type="float" office:value="{value!r}"/>'
    if isinstance(value, tuple) and value[0] == "date":
        return f'<table:table-cell table:style-name="date" office:value-type="date" office:date-value="{value[1]}"/>'
    if isinstance(value, tuple) and value[0] == "=":
        return f'<table:table-cell table:formula="of:={escape(value[1], {chr(34): "&quot;"})}"/>'
    if isinstance(value, tuple) and value[0] == "wide":
        return (f'<table:table-cell table:number-columns-spanned="{value[2]}" office:value-type="string">'
                f"<text:p>{escape(value[1])}</text:p></table:table-cell>"
                + "<table:covered-table-cell/>" * (value[2] - 1))
    lines = "".join(f"<text:p>{escape(line)}</text:p>" for line in value.split("\n"))
    return f'<table:table-cell office:value-type="string">{lines}</table:table-cell>'


def sheet(name, rows):
    body = "".join("<table:table-row>" + "".join(map(cell, row)) + "</table:table-row>" for row in rows)
    return f'<table:table table:name="{name}">{body}</table:table>'


HEADING = ["Part Number", "Description", "Unit Cost", "List Cost"]
BOOKS = {
    # Plain prices; a part number that looks like a number but is a text.
    "plain": [sheet("Prices", [HEADING, ["0012", "Elbow, 90 deg", 12.5, 18], ["A-7", "Reducer \"long\"", 0.05, 1.5],
                               ["B;9", "Tee | cross", 1234567.891, 0], ["neg", "Credit", -12.25, -0.1]])],
    # Results of formulas: numbers, texts, truth values, errors, and one that leans on another.
    "formulas": [sheet("Calc", [HEADING, ["F1", ("=", '"Pipe "&2&" in"'), ("=", "3*12+4"), ("=", "[.C2]*1.5")],
                                ["F2", ("=", "1=1"), ("=", "1/0"), ("=", "SUM([.C2:.D2])")],
                                ["F3", ("=", 'IF([.C2]>39;"dear";"cheap")'), ("=", "ROUND(2/3;2)"), ("=", "NA()")]])],
    # Dates, truth values, gaps in rows and columns, a far cell.
    "kinds": [sheet("Kinds", [["x"], [], [None, ("date", "1998-05-04"), True, False], [None] * 30 + ["far"],
                              [("date", "2026-11-21"), None, 1e-7, 123456789012]])],
    # Letters beyond the usual, a line end within a cell, quotes, and a text as long as a cell may be.
    "letters": [sheet("Größe", [HEADING, ["Ä-1", "Rohrbogen 90° groß", 7.5, 9], ["Ж", "Колено", 1, 2],
                                ["日本", "two\nlines", 3, 4], ["long", "x" * 9000, 5, 6]])],
    # A merged title over the table, a second sheet that must not be read.
    "merged": [sheet("First", [[("wide", "Price list 1998", 4)], HEADING, ["M1", "Duct", 4, 5]]),
               sheet("Second", [["not this"]])],
    # More rows than one record block or shared-text record holds.
    "many": [sheet("Many", [HEADING] + [[f"P{i}", f"Material number {i}", i / 4, i / 2] for i in range(1, 1501)])],
}
VERSIONS = {"xls": ("xls", "MS Excel 97"), "xlsx": ("xlsx", "Calc MS Excel 2007 XML"),
            "ecma": ("xlsx", "Calc Office Open XML")}
CSV = "csv:Text - txt - csv (StarCalc):44,34,76,1,,1033,false,true,false"


def convert(source, kind, folder):
    subprocess.run(["soffice", "--headless", "--convert-to", kind, "--outdir", str(folder), str(source)],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def main():
    TARGET.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as work:
        for name, sheets in BOOKS.items():
            source = pathlib.Path(work) / f"{name}.fods"
            source.write_text(HEAD + "".join(sheets) + TAIL, encoding="utf-8")
            for version, (ending, filter_name) in VERSIONS.items():
                made = TARGET / f"{name}_{version}.{ending}"
                convert(source, f"{ending}:{filter_name}", work)
                (pathlib.Path(work) / f"{name}.{ending}").replace(made)
                convert(made, CSV, TARGET)


if __name__ == "__main__":
    main()
