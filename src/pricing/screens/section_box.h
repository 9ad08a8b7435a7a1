#pragma once

#include <QGroupBox>

namespace tendo {

/// A part of a screen with a caption that its own layout shows; it draws no box.
class SectionBox : public QGroupBox {
    Q_OBJECT
  public:
    explicit SectionBox(QWidget* parent) : QGroupBox(parent) {}

  protected:
    void paintEvent(QPaintEvent*) override {}
};

}  // namespace tendo
