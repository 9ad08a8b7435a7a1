#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "footnotes/screens/footnote_changes.h"

namespace tendo {

class EditBar;
class RichEditor;

/// The text of one footnote in an editor with its tools, and where it came from: a footnote of the
/// library or a row of one of the project's lists. An edited text goes back there.
class FootnoteText : public QWidget {
    Q_OBJECT
  public:
    /// Names of the controls; `spoken` tells the editor from others of the same screen, `whose` its
    /// tools.
    struct Names {
        const char *editor, *bar;
        QString spoken, whose;
    };
    FootnoteText(const Names& names, QWidget* screen);

    void ShowNothing();
    void ShowLibraryText(const std::string& name, const std::string& text);
    /// A text that stands in the editor already stays there with its history.
    void ShowProjectText(FootnoteMode mode, std::size_t row);

    /// The footnote has another row or name now; the editor goes on with it.
    void FollowRow(std::size_t row) { row_ = row; }
    void FollowName(const std::string& name) { name_ = name; }

    FootnoteMode Mode() const { return mode_; }
    /// The name in the library, or the row of the project's list, that the text came from.
    const std::optional<std::string>& LibraryName() const { return name_; }
    const std::optional<std::size_t>& ProjectRow() const { return row_; }

    /// Puts an edited text back to where it came from. When that fails the user is told, the text
    /// stays in the editor, and it gives false.
    bool Store();
    /// The same for a text of the project alone, which never fails.
    void StoreProjectText();

    RichEditor* Editor() const { return editor_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Show(const std::string& text);
    bool StoreLibraryText();

    RichEditor* editor_ = nullptr;
    EditBar* bar_ = nullptr;
    FootnoteMode mode_ = FootnoteMode::Database;
    std::optional<std::string> name_;
    std::optional<std::size_t> row_;
};

}  // namespace tendo
