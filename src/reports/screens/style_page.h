#pragma once

#include <QWidget>
#include <functional>

#include "reports/report_options.h"

class QGridLayout;

namespace tendo {

/// Fonts and colours of the three kinds of text of a report, each with a sample.
class StylePage : public QWidget {
    Q_OBJECT
  public:
    StylePage(ReportOptionValues& values, QWidget* parent);

    /// Paints the samples as the options are now.
    void ShowStyles();

    /// Runs after a choice.
    std::function<void()> Changed;

  private:
    struct Row {
        const char* name;
        const char* caption;
        ReportTextStyle ReportOptionValues::*style;
    };
    static const Row Rows[3];

    void AddRow(QGridLayout* grid, const Row& row);
    void PickBackColor(const Row& row);
    void PickTextColor(const Row& row);
    void PickFont(const Row& row);
    void btnShowDefaultFonts_Click();
    void Choice();

    ReportOptionValues& values_;
};

}  // namespace tendo
