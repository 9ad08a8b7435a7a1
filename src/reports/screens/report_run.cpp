#include "reports/screens/report_run.h"

#include "platform/print/layout_surface.h"
#include "platform/qt/text_measurer_qt.h"

namespace tendo {
namespace {

ReportRun lastRun;

}  // namespace

const ReportRun& RunReports(const std::function<void(ReportContext&)>& reports) {
    QtTextMeasurer measurer;
    LayoutSurface layout(measurer);
    RecordingSurface surface(layout);
    ReportContext context(surface, Project());
    reports(context);
    lastRun = {layout.TakeResult(), surface.Calls(), std::move(context.Problems),
               lastRun.number + 1};
    return lastRun;
}

const ReportRun& LastReportRun() {
    return lastRun;
}

}  // namespace tendo
