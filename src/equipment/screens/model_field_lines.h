#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "equipment/model_fields.h"

class QGridLayout;
class QPlainTextEdit;
class QToolButton;
class QWidget;

namespace tendo {

class TextField;

/// Entry lines bound to fields of the current system's models: leaving one puts its text into the
/// record and shows it as the record has it. A field with choices has a help mark that offers them,
/// and a list of them at Alt+Down.
class ModelFieldLines : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

    /// Label and entry line in a row of the grid, from a column on, the line over `span` columns.
    void Add(const ModelField& field, QGridLayout* grid, int row, int column, int span,
             QWidget* parent);
    /// All fields one below the other, in two columns of labels and lines where fields stand beside
    /// each other. `side` goes into their spoken names: "Height, Cooling".
    void AddColumn(std::span<const ModelField> fields, const QString& side, QGridLayout* grid,
                   QWidget* parent);
    /// The arrow keys and Return lead through the fields in the order in which they were added.
    void Chain();

    /// Fills all lines from the records of a system (0 to 4).
    void Show(int system);
    /// Puts what is being typed into the records.
    void Store();

  Q_SIGNALS:
    /// A field took a new text.
    void Taken(const tendo::ModelField* field);

  private:
    struct Line {
        const ModelField* field;
        TextField* text = nullptr;
        QPlainTextEdit* memo = nullptr;

        QWidget* Control() const;
    };

    TextField* AddText(const ModelField& field, QWidget* parent);
    QPlainTextEdit* AddMemo(const ModelField& field, QWidget* parent);
    QString SpokenName(const ModelField& field) const;
    void ShowLine(const Line& line);
    void Commit(const ModelField& field, const QString& text);
    void WantHelp(const ModelField& field, TextField* line);

    std::vector<Line> lines_;
    QString side_;
    int system_ = 0;
    bool showing_ = false;
};

}  // namespace tendo
