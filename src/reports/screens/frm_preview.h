#pragma once

#include <string>

#include "platform/qt/form.h"

namespace tendo {

class PreviewPane;

/// The preview of the reports, a page at a time.
class FrmPreview : public Form {
    Q_OBJECT
  public:
    FrmPreview();

    /// Runs all marked reports and shows the first page.
    void ShowAllReports();

    QSize sizeHint() const override { return {1060, 1080}; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddOutputs();
    void AddPictures();
    void Tell(const std::string& note);
    void Press(const char* tool);

    PreviewPane* pane_ = nullptr;
};

/// The preview command: opens the screen, or brings it forward, and runs all marked reports.
void ShowPreview();

}  // namespace tendo
