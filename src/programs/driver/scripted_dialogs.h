#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "platform/qt/dialogs.h"
#include "programs/driver/compare.h"

namespace tendo::driver {

/// What a script said the next dialog shall be answered with.
struct QueuedAnswer {
    enum class Kind { Button, Text, File, Color, Print, NoPrinter, Cancel };
    Kind kind = Kind::Cancel;
    std::string value;
    std::map<std::string, std::string> settings;  // of a printer: pages, copies, paper, ...
};

/// Answers dialogs from a queue and keeps all that came up. A dialog without an answer is cancelled
/// and leaves a fault for the command that raised it.
class ScriptedDialogs : public DialogService {
  public:
    Answer Message(const MessageDialog& dialog) override;
    std::optional<std::string> Input(const InputDialog& dialog) override;
    std::optional<std::string> File(const FileDialog& dialog) override;
    std::optional<std::uint32_t> Color(const ColorDialog& dialog) override;
    std::optional<FontChoice> Font(const std::string& title, const FontChoice& font) override;
    /// There is one, unless the next answer says that there is none.
    bool HasPrinter() override;
    /// Prints into a file.
    bool Print(const PrintDialog& dialog, QPrinter& printer) override;

    std::deque<QueuedAnswer> answers;
    /// What a print goes into when its answer names no file.
    std::string printFile;
    /// All dialogs so far: kind, title, text, buttons, icon, filter, file, folder, answer.
    std::vector<Json> shown;
    std::size_t looked = 0;    // dialogs before this one were looked at by `expect dialog`
    std::size_t reported = 0;  // dialogs before this one were given by `dialogs`
    /// Faults since the last command began.
    std::vector<std::string> faults;

  private:
    /// The answer for a dialog, when its kind fits.
    std::optional<std::string> Take(Json dialog, std::initializer_list<QueuedAnswer::Kind> fitting);
};

}  // namespace tendo::driver
