#pragma once

#include <QTextEdit>
#include <string>

namespace tendo {

/// An editor of rich text on white paper, whatever the theme: what is written here is printed. It
/// takes and gives the text as Rich Text Format; what wasn't edited is given back as it was.
class RichEditor : public QTextEdit {
    Q_OBJECT
  public:
    explicit RichEditor(QWidget* parent = nullptr);

    /// Shows a text, rich or plain; its history of changes begins anew.
    void ShowText(const std::string& text);
    /// The text as it was shown when it wasn't edited since, else in Rich Text Format.
    std::string Text() const;
    bool IsEdited() const { return edited_; }
    /// What stands in the editor counts as stored, or as not.
    void SetEdited(bool edited) { edited_ = edited; }

    // What the tools do to the selection, or to what is typed next.
    void SetBold(bool on);
    void SetItalic(bool on);
    void SetUnderline(bool on);
    void SetColor(QColor color);
    void SetFamily(const QString& family);
    void SetPointSize(double points);
    void SetBullets(bool on);
    /// One step in (1) or out (-1).
    void Indent(int steps);

  protected:
    /// Rich text from other programs comes in its own format where they give it.
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    QMimeData* createMimeDataFromSelection() const override;

  private:
    void Merge(const QTextCharFormat& format);

    std::string shown_;
    bool edited_ = false;
};

}  // namespace tendo
