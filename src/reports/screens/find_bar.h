#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace tendo {

/// The bar in which a text to find in a document is typed: next, previous, and which of how many
/// it is.
class FindBar : public QWidget {
    Q_OBJECT
  public:
    explicit FindBar(QWidget* parent);

    /// Shows the bar and leads to its field, the text in it marked.
    void Open();
    QString Wanted() const;
    /// "3 of 12" for 2 of 12; `current` counts from 0.
    void ShowCount(int current, int count);

  Q_SIGNALS:
    void WantedChanged();
    /// 1: the next place, -1: the one before.
    void StepWanted(int direction);
    void Closed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* txtFind_;
    QLabel* lblFindCount_;
    QToolButton* btnFindPrevious_;
    QToolButton* btnFindNext_;
};

}  // namespace tendo
