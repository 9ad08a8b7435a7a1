#!/usr/bin/env bash
# Makes the rich texts of tests/data/rtf with several programs from tests/data/rtf/sources, and beside each the plain text
# that LibreOffice reads from it. Needs the packages libreoffice-writer, pandoc, abiword, latex2rtf, enscript, highlight, doxygen,
# docbook-utils, docbook-xml, openjade, librtf-writer-perl. `make_rtf_corpus.sh with_own_writer` makes those of our own writer (in own/).
set -euo pipefail
cd "$(dirname "$0")/.."
out=$PWD/tests/data/rtf
sources=$out/sources
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

markdown() {
    local name=$1
    shift
    pandoc -f markdown-tex_math_dollars "$sources/$name.md" --resource-path="$sources" "$@" 2>/dev/null
}

office() { soffice "-env:UserInstallation=file://$work/profile" --headless --convert-to "$@" >/dev/null 2>&1; }

with_pandoc() {
    for text in "$sources"/*.md; do
        name=$(basename "$text" .md)
        markdown "$name" -s -o "$out/pandoc_$name.rtf"
    done
}

with_office() {
    mkdir -p "$work/office"
    for name in terms warranty scope rates french german polish russian japanese symbols notes letter; do
        markdown "$name" -s -o "$work/office/writer_$name.docx"
    done
    for name in terms rates warranty; do
        markdown "$name" -s -t html --metadata title=- -o "$work/office/writerweb_$name.html"
    done
    for text in "$sources"/*.fodt; do
        cp "$text" "$work/office/writer_$(basename "$text")"
    done
    office rtf:"Rich Text Format" --outdir "$out" "$work"/office/*.docx "$work"/office/*.fodt
    office rtf:"Rich Text Format" --infilter="HTML (StarWriter)" --outdir "$out" "$work"/office/*.html
}

with_abiword() {
    for name in layout characters fields pages tables lists; do
        office odt --outdir "$work" "$sources/$name.fodt"
        abiword --to=rtf --to-name="$out/abiword_$name.rtf" "$work/$name.odt" 2>/dev/null || echo "abiword: no $name"
    done
    for name in rates polish russian japanese; do
        markdown "$name" -s -t html --metadata title=- -o "$work/$name.html"
        abiword --to=rtf --to-name="$out/abiword_$name.rtf" "$work/$name.html" 2>/dev/null || echo "abiword: no $name"
    done
    for name in terms warranty symbols scope letter notes; do
        markdown "$name" -s -o "$work/$name.docx"
        abiword --to=rtf --to-name="$out/abiword_$name.rtf" "$work/$name.docx" 2>/dev/null || echo "abiword: no $name"
    done
}

with_latex2rtf() {
    for name in terms warranty french german rates; do
        {
            echo '\documentclass{article}\usepackage[utf8]{inputenc}\begin{document}'
            markdown "$name" -t latex | sed -E 's/\\tightlist//; s/\\def\\labelenum[iv]+\{.*//'
            echo '\end{document}'
        } >"$work/$name.tex"
        (cd "$work" && latex2rtf -o "$out/latex2rtf_$name.rtf" "$name.tex" >/dev/null 2>&1) || true
    done
}

with_highlighters() {
    highlight --syntax=h -O rtf --font=Courier -i "$sources/takeoff.h" -o "$out/highlight_header.rtf"
    highlight --syntax=sql -O rtf --page-color -i "$sources/takeoff.sql" -o "$out/highlight_query.rtf"
    enscript --quiet --language=rtf --color --highlight=c -o "$out/enscript_header.rtf" "$sources/takeoff.h" || true
    enscript --quiet --language=rtf --highlight=sql -o "$out/enscript_query.rtf" "$sources/takeoff.sql" || true
}

with_docbook() {
    for name in warranty rates french; do
        markdown "$name" --ascii -s -t docbook4 --metadata title="$name" -o "$work/$name.xml"
        SP_CHARSET_FIXED=1 SP_ENCODING=xml openjade -t rtf -d /usr/share/docbook-utils/docbook-utils.dsl#print \
            -o "$out/openjade_$name.rtf" /usr/share/xml/declaration/xml.dcl "$work/$name.xml" 2>/dev/null || true
    done
}

with_doxygen() {
    mkdir -p "$work/doxygen"
    (cd "$work/doxygen" && cp "$sources/takeoff.h" . &&
        printf 'INPUT=takeoff.h\nGENERATE_HTML=NO\nGENERATE_LATEX=NO\nGENERATE_RTF=YES\nCOMPACT_RTF=YES\nHAVE_DOT=NO\nQUIET=YES\n' >Doxyfile &&
        doxygen Doxyfile >/dev/null 2>&1)
    cp "$work/doxygen/rtf/refman.rtf" "$out/doxygen_takeoff.rtf"
}

# The writer notes the name it was called by: that is to be no path.
with_perl() { (cd "$sources" && perl make_rtf_writer.pl "$out"); }

# Our own writer's texts; needs build/dev. The tests that write them fail until LibreOffice has read them.
with_own_writer() {
    mkdir -p "$out/own"
    TENDO_WRITE_RTF=$out/own build/dev/bin/test_print --gtest_filter='*RtfOwnTexts*' >/dev/null || true
    office "txt:Text (encoded):UTF8" --outdir "$out/own" "$out"/own/*.rtf
}

read_by_office() {
    office "txt:Text (encoded):UTF8" --outdir "$out" "$out"/*.rtf
}

only=${1:-all}
if [ "$only" = all ]; then
    rm -f "$out"/*.rtf "$out"/*.txt
    for program in with_pandoc with_office with_abiword with_latex2rtf with_highlighters with_docbook with_doxygen with_perl; do
        "$program"
    done
    read_by_office
else
    "$only"
fi
