#pragma once

#include "platform/qt/form.h"

class QScrollArea;
class QVBoxLayout;

namespace tendo {

/// A screen on the models of the current system. It follows when another screen moves to another
/// system or changes its models.
class SystemForm : public Form {
    Q_OBJECT
  public:
    using Form::Form;

    /// Records to screen.
    virtual void Refill() = 0;

    QSize sizeHint() const override;

  protected:
    /// The column in which the screen's parts stand, with scroll bars where they have no room.
    QVBoxLayout* MakeColumn();
    QWidget* Content() const { return content_; }
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* content_ = nullptr;
    bool watchesActivation_ = false;
};

/// Refills a screen of that name; nothing when it isn't loaded.
void RefillSystemForm(const QString& name);

}  // namespace tendo
