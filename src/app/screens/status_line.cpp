#include "app/screens/status_line.h"

#include <QDateTime>
#include <QLabel>

#include "app/screens/bar.h"
#include "platform/files/paths.h"
#include "platform/qt/fields.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

/// "14:02", with the day before it when that isn't today; empty when there is no such file.
QString WrittenAt(const std::string& file) {
    const auto seconds = FileModified(file);
    if (!seconds) return {};
    const QDateTime when = QDateTime::fromSecsSinceEpoch(*seconds);
    const bool today = when.date() == QDate::currentDate();
    return when.toString(today ? "HH:mm" : "MMM d, HH:mm");
}

bool IsUntitled() {
    return UpperCase(BaseName(State().ProjectFileName)) == "UNTITLED.HID";
}

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent),
      field_(AddPanel("StatusBarField", false)),
      range_(AddPanel("StatusBarRange", false)),
      unit_(AddPanel("StatusBarUnit", false)),
      file_(nullptr),
      written_(nullptr) {
    AddPanel("StatusBarPanel2", true);
    file_ = AddPanel("StatusBarFile", true);
    written_ = AddPanel("StatusBarWritten", true);
    setSizeGripEnabled(false);
    setContentsMargins(6, 0, 6, 0);
}

QLabel* StatusLine::AddPanel(const char* name, bool right) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    if (right)
        addPermanentWidget(label);
    else
        addWidget(label);
    return label;
}

void StatusLine::ShowField(const TextField* field) {
    const QString name = field ? field->accessibleName() : QString();
    field_->setText(name.isEmpty() ? QString() : "<b>" + name.toHtmlEscaped() + "</b>");
    range_->setText(field && !field->RangeText.isEmpty() ? "Range " + field->RangeText : QString());
    unit_->setText(field ? field->UnitText : QString());
}

void StatusLine::ShowFiles() {
    if (!MainBar().CanUse("ToolClose")) {
        file_->clear();
        written_->clear();
        return;
    }
    const bool untitled = IsUntitled();
    file_->setText(untitled ? "Untitled"
                            : QString::fromStdString(BaseName(State().ProjectFileName)));
    file_->setToolTip(untitled ? QString() : QString::fromStdString(State().ProjectFileName));
    QStringList times;
    times << (untitled ? QString("not saved yet") : "saved " + WrittenAt(State().ProjectFileName));
    const QString workingCopy = WrittenAt(State().WorkFileName);
    if (!workingCopy.isEmpty()) times << "working copy " + workingCopy;
    written_->setText(times.join(", "));
}

}  // namespace tendo
