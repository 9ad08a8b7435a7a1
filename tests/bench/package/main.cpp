#include <QGuiApplication>

#include "package/package_document.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/text_measurer_qt.h"

/// tendo-bench-package OUT.pdf: the package as a program of its own lays it out and writes it.
/// With --empty a document without pages: what the start costs.
int main(int argc, char** argv) {
    if (argc < 2) return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (!tendo::DocumentFontsInstalled()) return 1;
    const bool isEmpty = argc > 2;
    tendo::WritePdf(isEmpty ? tendo::Document() : tendo::bench::PackageDocument(), argv[1]);
    return 0;
}
