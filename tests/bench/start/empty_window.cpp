#include <QApplication>
#include <QMainWindow>
#include <cstdio>

#include "first_paint.h"

/// The least that a program with a main window can be; says so at its first paint, and ends.
int main(int argc, char** argv) {
    const tendo::bench::FirstPaintApplication application(argc, argv, "empty", [] {
        std::fputc('\n', stdout);
        std::fflush(stdout);
        std::_Exit(0);
    });
    QMainWindow window;
    window.setObjectName("empty");
    window.resize(1360, 860);
    window.show();
    return QApplication::exec();
}
