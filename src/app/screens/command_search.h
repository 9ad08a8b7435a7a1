#pragma once

#include <QLineEdit>
#include <QStandardItemModel>
#include <string>

namespace tendo {

/// The box that finds a command by a part of its name. It offers the commands that can be used at
/// that moment.
class CommandSearch : public QLineEdit {
    Q_OBJECT
  public:
    explicit CommandSearch(QWidget* parent);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Refill();
    void RunEntry(const QString& entry);

    QStandardItemModel model_;
    std::string chosenTool_;  // waits for its run
};

}  // namespace tendo
