#include <QApplication>
#include <QPointer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <vector>

#include "app/screens/application.h"
#include "app/screens/screen_table.h"
#include "first_paint.h"
#include "platform/qt/apply_theme.h"
#include "platform/qt/text_measurer_qt.h"

namespace tendo::bench {
namespace {

[[noreturn]] void End() {
    std::fputc('\n', stdout);
    std::fflush(stdout);
    std::_Exit(0);
}

double OpenOnce(const QString& name) {
    const auto start = std::chrono::steady_clock::now();
    double seconds = 0;
    const auto painted = [&] {
        QApplication::processEvents();
        seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    Form::SetModalObserver([&](Form& form) {
        painted();
        form.Unload();
    });
    ShowScreen(name);
    if (seconds == 0) painted();
    Form::SetModalObserver({});
    if (Form* form = Form::Find(name)) form->Unload();
    QApplication::processEvents();
    return seconds;
}

/// One line a screen: its name and the median of its opening times in milliseconds.
void TellOpeningTimes() {
    constexpr int rounds = 7;
    for (const QString& name : ScreenNames()) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round)
            times.push_back(OpenOnce(name));
        std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
        std::printf("%s %.2f\n", qPrintable(name), times[rounds / 2] * 1000);
    }
}

}  // namespace
}  // namespace tendo::bench

/// tendo-bench-start HOME [--screens]: the program as it starts, up to its first paint; with
/// --screens the sample job is opened then, and each screen timed.
int main(int argc, char** argv) {
    if (argc < 2) return 2;
    const bool screens = argc > 2 && std::strcmp(argv[2], "--screens") == 0;
    tendo::bench::FirstPaintApplication application(argc, argv, "frmMDI", [screens] {
        if (!screens) tendo::bench::End();
    });
    tendo::ApplyTheme(application);
    if (!tendo::DocumentFontsInstalled()) return 1;
    const bool started = tendo::StartTendo({.home = argv[1],
                                            .winIni = {},
                                            .today = {},
                                            .args = {},
                                            .shortLogo = true,
                                            .sample = screens});
    if (!started) return 1;
    if (screens) {
        tendo::bench::TellOpeningTimes();
        std::fflush(stdout);
        std::_Exit(0);
    }
    return QApplication::exec();
}
