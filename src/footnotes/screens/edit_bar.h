#pragma once

#include <QHash>
#include <QKeySequence>
#include <QTimer>
#include <QWidget>
#include <span>
#include <string>
#include <string_view>

class QComboBox;
class QHBoxLayout;
class QToolButton;

namespace tendo {

class RichEditor;
struct EditTool;

/// The band "EditBand": the tools of a footnote's editor. They are controls of the screen under
/// their own names; a timer keeps their state in line with the selection.
class EditBar : public QWidget {
    Q_OBJECT
  public:
    /// `whose` tells the tools from those of another bar of the same screen.
    EditBar(RichEditor* editor, QWidget* parent, const QString& whose = {});

    /// The timer, under its name, belongs to the screen.
    static constexpr const char* TimerName = "tmrToolbarTimer";

    /// Shows the tools as the text at the caret is.
    void ShowState();

    // What tools do that takes more than a call of the editor.
    void ImportTextFile();
    void ImportFile(const std::string& file);
    void PickColor();
    void Insert(std::string_view token);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void AddTools(QHBoxLayout* line, std::span<const EditTool> tools);
    QToolButton* MakeTool(const EditTool& tool);
    void AddFonts(QHBoxLayout* line);
    void SetFont();
    void SetFontSize();

    QString Spoken(const QString& tool) const;

    RichEditor* editor_;
    QString whose_;
    QHash<QKeySequence, QToolButton*> keys_;
    QTimer timer_;
    QComboBox* fonts_ = nullptr;
    QComboBox* sizes_ = nullptr;
};

}  // namespace tendo
