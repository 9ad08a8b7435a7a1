#include <QAbstractButton>
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/screens/application.h"
#include "app/screens/screen_table.h"
#include "platform/qt/apply_theme.h"
#include "platform/qt/text_measurer_qt.h"
#include "reports/screens/frm_owner.h"
#include "reports/screens/report_run.h"

namespace tendo::bench {
namespace {

/// Notices when a page of a report was painted that was run since `Expect`.
class PageWatch : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        const bool handled = QApplication::notify(receiver, event);
        if (event->type() == QEvent::Paint && receiver->inherits("tendo::PageView"))
            painted_ = painted_ || LastReportRun().number > runsBefore_;
        return handled;
    }
    void Expect() {
        painted_ = false;
        runsBefore_ = LastReportRun().number;
    }
    bool HasPainted() const { return painted_; }

  private:
    bool painted_ = false;
    int runsBefore_ = 0;
};

/// Milliseconds from the work's begin to the end of the events in which a page was painted.
double UntilPainted(PageWatch& application, const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    application.Expect();
    work();
    constexpr int manyRounds = 1000;
    for (int round = 0; round < manyRounds && !application.HasPainted(); ++round)
        QApplication::processEvents();
    if (!application.HasPainted()) {
        std::fputs("no page was painted\n", stderr);
        std::_Exit(1);
    }
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double MedianOf(int rounds, const std::function<double()>& measure) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(measure());
    std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
    return times[static_cast<std::size_t>(rounds) / 2];
}

void Unload(const char* name) {
    if (Form* form = Form::Find(QLatin1String(name))) form->Unload();
    QApplication::processEvents();
}

double OpenPreview(PageWatch& application) {
    Unload("frmPreview");
    return UntilPainted(application, [] { ActiveBarClick("ToolPreview"); });
}

double ChangeOption(PageWatch& application) {
    auto* option =
        qobject_cast<QAbstractButton*>(Form::Find("frmReportOptions")->Control("chkCapacity"));
    return UntilPainted(application, [option] { option->click(); });
}

}  // namespace
}  // namespace tendo::bench

/// tendo-bench-preview HOME: opens the sample job and tells, in milliseconds, the first preview,
/// the median of further ones, and the median of an option's change with the page's new paint.
int main(int argc, char** argv) {
    if (argc != 2) return 2;
    tendo::bench::PageWatch application(argc, argv);
    tendo::ApplyTheme(application);
    if (!tendo::DocumentFontsInstalled()) return 1;
    tendo::NeverAskForOwner();
    if (!tendo::StartTendo({.home = argv[1],
                            .winIni = {},
                            .today = {},
                            .args = {},
                            .shortLogo = true,
                            .sample = true}))
        return 1;
    QApplication::processEvents();
    using namespace tendo::bench;
    const double first = OpenPreview(application);
    const double further = MedianOf(11, [&] { return OpenPreview(application); });
    Unload("frmPreview");
    UntilPainted(application, [] { tendo::ShowScreen("frmReportOptions"); });
    const double option = MedianOf(11, [&] { return ChangeOption(application); });
    std::printf("%.3f %.3f %.3f\n", first, further, option);
    std::fflush(stdout);
    std::_Exit(0);
}
