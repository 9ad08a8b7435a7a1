#pragma once

#include <QTextEdit>
#include <string>

#include "platform/print/rich_model.h"

namespace tendo {

/// An editor of rich text on white paper, whatever the theme: what is written here is printed. It
/// takes and gives the text as Rich Text Format; what wasn't edited is given back as it was.
class RichEditor : public QTextEdit {
    Q_OBJECT
  public:
    explicit RichEditor(QWidget* parent = nullptr);

    /// Shows a text, rich or plain; its history of changes begins anew.
    void ShowText(const std::string& text);
    /// Puts a text, rich or plain, in the place of the whole text; one step for undo.
    void ReplaceText(const std::string& text);
    /// The text as it was shown when it wasn't edited since, else in Rich Text Format.
    std::string Text() const;
    bool IsEdited() const { return edited_; }
    /// What stands in the editor was stored.
    void MarkStored();

    /// Makes points of a list of the selected paragraphs, or plain ones.
    void SetBullets(bool on);
    /// The selected paragraphs one step in (1) or out (-1).
    void Indent(int steps);

  Q_SIGNALS:
    /// A text file was dropped on the text.
    void FileDropped(const QString& file);

  protected:
    /// Rich text from other programs comes in its own format where they give it. Of what a browser
    /// gives only what a footnote can print well is taken: words, bold, italics, underline, points.
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    QMimeData* createMimeDataFromSelection() const override;

  private:
    void InsertRich(const RichText& text);

    std::string shown_;
    bool edited_ = false;
};

}  // namespace tendo
