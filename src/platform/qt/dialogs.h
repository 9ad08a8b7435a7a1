#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QPrinter;

namespace tendo {

/// All dialogs go through this seam: one implementation shows them, the driver's answers them from
/// a script. Texts are UTF-8; "&" in texts stands for itself.

enum class Answer { Ok, Cancel, Yes, No };
enum class MessageIcon { None, Information, Question, Warning, Critical };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };

struct MessageDialog {
    std::string title;
    std::string text;
    Buttons buttons = Buttons::Ok;
    MessageIcon icon = MessageIcon::None;
};

struct InputDialog {
    std::string title;
    std::string prompt;
    std::string text;  // what stands in the field at first
};

/// `filter`: "TENDO File (*.TDW)|*.TDW" with further pairs behind it; a filter without "|" is taken
/// as one text.
struct FileDialog {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    std::string title;
    std::string filter;
    std::string fileName;
    std::string folder;
    std::string defaultExtension;  // without its point
    bool promptOnOverwrite = false;
};

struct ColorDialog {
    std::string title;
    std::uint32_t color = 0;  // 0xRRGGBB
};

struct FontChoice {
    std::string family;
    int size = 10;
    bool bold = false;
    bool italic = false;
};

struct PrintDialog {
    std::string title;
    /// Of the document; 0: there is no job yet, the dialog only chooses and sets up the printer.
    int pages = 0;
    bool hasShownPage = false;  // "current page" can be chosen
};

class DialogService {
  public:
    virtual ~DialogService() = default;
    virtual Answer Message(const MessageDialog& dialog) = 0;
    /// The text, or nothing on cancel.
    virtual std::optional<std::string> Input(const InputDialog& dialog) = 0;
    /// The chosen file, or nothing on cancel.
    virtual std::optional<std::string> File(const FileDialog& dialog) = 0;
    virtual std::optional<std::uint32_t> Color(const ColorDialog& dialog) = 0;
    virtual std::optional<FontChoice> Font(const std::string& title, const FontChoice& font) = 0;
    /// Whether this computer has a printer.
    virtual bool HasPrinter() = 0;
    /// The printer dialog, which leaves its choices in the printer; true when the user agreed.
    virtual bool Print(const PrintDialog& dialog, QPrinter& printer) = 0;
};

/// The service that shows real dialogs.
std::unique_ptr<DialogService> MakeScreenDialogs();

/// The service in use; without another one, the one that shows real dialogs.
DialogService& Dialogs();
void SetDialogs(std::unique_ptr<DialogService> service);

/// Short forms.
void ShowMessage(const std::string& title, const std::string& text,
                 MessageIcon icon = MessageIcon::None);
/// A database to open; nothing on cancel.
std::optional<std::string> AskForDatabase(const std::string& title, const std::string& folder);
Answer Ask(const std::string& title, const std::string& text, Buttons buttons,
           MessageIcon icon = MessageIcon::Question);

}  // namespace tendo
