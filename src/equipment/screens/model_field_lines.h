#pragma once

#include <QObject>
#include <vector>

#include "equipment/model_fields.h"

class QGridLayout;
class QPlainTextEdit;
class QToolButton;
class QWidget;

namespace tendo {

class TextField;

/// Entry lines bound to fields of the current system's models: leaving one puts its text into the
/// record and shows it as the record has it. A field with choices has a help mark that offers them.
class ModelFieldLines : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

    /// Label and entry line in a row of the grid, from a column on, the line over `span` columns.
    void Add(const ModelField& field, QGridLayout* grid, int row, int column, int span,
             QWidget* parent);
    /// All fields one below the other.
    void AddColumn(std::span<const ModelField> fields, QGridLayout* grid, QWidget* parent);
    TextField* At(const QString& name) const;

    /// Fills all lines from the records of a system (0 to 4).
    void Show(int system);

  Q_SIGNALS:
    /// A field took a new text.
    void Taken(const tendo::ModelField* field);

  private:
    struct Line {
        const ModelField* field;
        TextField* text = nullptr;
        QPlainTextEdit* memo = nullptr;
    };

    TextField* AddText(const ModelField& field, QWidget* parent);
    QPlainTextEdit* AddMemo(const ModelField& field, QWidget* parent);
    void ShowLine(const Line& line);
    void Commit(const ModelField& field, const QString& text);
    void WantHelp(const ModelField& field, TextField* line);

    std::vector<Line> lines_;
    int system_ = 0;
    bool showing_ = false;
};

}  // namespace tendo
