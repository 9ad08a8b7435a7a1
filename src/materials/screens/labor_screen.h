#pragma once

#include <functional>
#include <string>

#include "materials/labor_page.h"
#include "materials/screens/labor_rows.h"
#include "platform/qt/form.h"

class QComboBox;
class QHBoxLayout;
class QPushButton;
class QScrollArea;

namespace tendo {

/// What the labor takeoff and the editor of a labor list share: the lines, the choice of a list,
/// and clearing them.
class LaborScreen : public Form {
    Q_OBJECT
  public:
    QSize sizeHint() const override;

  protected:
    LaborScreen(const QString& name, const QString& caption, std::vector<LaborRow>& rows);

    LaborPage& Page() { return page_; }
    /// Puts a control above the lines; to be done before `AddLines`, for Tab follows the order in
    /// which controls are made.
    void AddToTop(QWidget* control);
    /// The choice of a list, the lines, and the buttons below them.
    void AddLines();
    /// What holds all controls.
    QWidget* Content() { return content_; }
    QPushButton* AddButton(const char* name, const char* caption,
                           const std::function<void()>& click);

    /// Reads a list into the rows behind the screen.
    virtual void ReadList(const std::string& name) = 0;
    /// The user changed something.
    virtual void Edited() = 0;

  private:
    void AddListChoice();
    /// The choice of lists anew; the chosen one stays chosen if it is still there.
    void FillLists();
    void ComboSelectList_Click();
    void btnClear_Click();

    LaborPage page_;
    QWidget* content_;
    LaborRows* lines_ = nullptr;
    QHBoxLayout* top_ = nullptr;
    QHBoxLayout* bottom_ = nullptr;
    QComboBox* ComboSelectList_ = nullptr;
    int chosenList_ = 0;
};

}  // namespace tendo
