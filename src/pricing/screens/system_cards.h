#pragma once

#include <QWidget>
#include <array>

#include "project/project_records.h"

namespace tendo {

class SystemCardButton;

/// The five systems at a glance, the current one marked; a click goes to a system.
class SystemCards : public QWidget {
    Q_OBJECT
  public:
    explicit SystemCards(QWidget* parent);
    /// Models and prices as they stand in the records.
    void Show();

  Q_SIGNALS:
    void Chosen(int system);

  private:
    std::array<SystemCardButton*, SystemCount> cards_{};
};

}  // namespace tendo
