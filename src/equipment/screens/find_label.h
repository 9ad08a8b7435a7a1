#pragma once

#include <QLabel>
#include <QTimer>

namespace tendo {

/// What was typed to find a row of a grid, in the grid's lower right corner; gone after a pause.
class FindLabel : public QLabel {
    Q_OBJECT
  public:
    explicit FindLabel(QWidget* grid);

    const QString& Typed() const { return typed_; }
    void Show(const QString& typed, bool found, const QRect& area);
    void Place(const QRect& area);
    void End();

  private:
    QString typed_;
    QTimer pause_;
};

}  // namespace tendo
