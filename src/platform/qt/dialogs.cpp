#include "platform/qt/dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>

#include "platform/qt/icons.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// "Name (*.x)|*.x|Other|*.y" as Qt writes it: "Name (*.x);;Other (*.y)".
QString QtFilter(const std::string& filter) {
    const QStringList parts = Q(filter).split('|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        const QString patterns =
            i + 1 < parts.size() ? QString(parts[i + 1]).replace(';', ' ') : "*";
        const QString name = QString(parts[i]).section('(', 0, 0).trimmed();
        filters << QString("%1 (%2 %3 %4)")
                       .arg(name.isEmpty() ? "Files" : name, patterns, patterns.toLower(),
                            patterns.toUpper());
    }
    filters << "All files (*)";
    return filters.join(";;");
}

QMessageBox::StandardButtons QtButtons(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

/// The sign of a message in the colours of the program; null for none.
QPixmap SignOf(MessageIcon icon, double ratio) {
    const ThemeColors& colors = Theme();
    switch (icon) {
        case MessageIcon::Information:
            return LinePixmap("information", colors.accent, 36, ratio);
        case MessageIcon::Question:
            return LinePixmap("help", colors.accent, 36, ratio);
        case MessageIcon::Warning:
            return LinePixmap("warning", colors.heating, 36, ratio);
        case MessageIcon::Critical:
            return LinePixmap("critical", colors.negative, 36, ratio);
        default:
            return {};
    }
}

/// The normal pointer while a dialog is up, whatever command put the hourglass there.
class PlainPointer {
  public:
    PlainPointer() {
        while (QApplication::overrideCursor()) {
            ++count_;
            QApplication::restoreOverrideCursor();
        }
    }
    ~PlainPointer() {
        for (int i = 0; i < count_; ++i)
            QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;

  private:
    int count_ = 0;
};

class QtDialogs : public DialogService {
  public:
    Answer Message(const MessageDialog& dialog) override {
        const PlainPointer pointer;
        QMessageBox box(QMessageBox::NoIcon, Q(dialog.title), Q(dialog.text),
                        QtButtons(dialog.buttons), QApplication::activeWindow());
        box.setTextFormat(Qt::PlainText);
        box.setIconPixmap(SignOf(dialog.icon, box.devicePixelRatioF()));
        switch (box.exec()) {
            case QMessageBox::Ok:
                return Answer::Ok;
            case QMessageBox::Yes:
                return Answer::Yes;
            case QMessageBox::No:
                return Answer::No;
            default:
                return dialog.buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
        }
    }

    std::optional<std::string> Input(const InputDialog& dialog) override {
        const PlainPointer pointer;
        bool ok = false;
        const QString text =
            QInputDialog::getText(QApplication::activeWindow(), Q(dialog.title), Q(dialog.prompt),
                                  QLineEdit::Normal, Q(dialog.text), &ok);
        if (!ok) return std::nullopt;
        return text.toStdString();
    }

    std::optional<std::string> File(const FileDialog& dialog) override {
        const PlainPointer pointer;
        // A drive that this system doesn't know ("a:\\") leaves the choice of the folder to the
        // user.
        const bool known = dialog.folder.empty() || QDir(Q(dialog.folder)).exists();
        QFileDialog box(QApplication::activeWindow(), Q(dialog.title),
                        known ? Q(dialog.folder) : QDir::homePath(), QtFilter(dialog.filter));
        const bool save = dialog.kind == FileDialog::Kind::Save;
        box.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        box.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        box.setOption(QFileDialog::DontConfirmOverwrite, !dialog.promptOnOverwrite);
        if (!dialog.defaultExtension.empty()) box.setDefaultSuffix(Q(dialog.defaultExtension));
        const QString name = known ? Q(dialog.fileName) : Q(dialog.fileName).section('\\', -1);
        if (!name.contains('*')) box.selectFile(name);
        if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
        return box.selectedFiles().constFirst().toStdString();
    }

    std::optional<std::uint32_t> Color(const ColorDialog& dialog) override {
        const PlainPointer pointer;
        const QColor color = QColorDialog::getColor(QColor(dialog.color),
                                                    QApplication::activeWindow(), Q(dialog.title));
        if (!color.isValid()) return std::nullopt;
        return color.rgb() & 0xFFFFFFU;
    }

    std::optional<FontChoice> Font(const std::string& title, const FontChoice& font) override {
        const PlainPointer pointer;
        QFont start(Q(font.family), font.size);
        start.setBold(font.bold);
        start.setItalic(font.italic);
        bool ok = false;
        const QFont chosen =
            QFontDialog::getFont(&ok, start, QApplication::activeWindow(), Q(title));
        if (!ok) return std::nullopt;
        return FontChoice{chosen.family().toStdString(), chosen.pointSize(), chosen.bold(),
                          chosen.italic()};
    }

    bool HasPrinter() override { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

    bool Print(const PrintDialog& dialog, QPrinter& printer) override {
        const PlainPointer pointer;
        QPrintDialog box(&printer, QApplication::activeWindow());
        box.setWindowTitle(Q(dialog.title));
        const bool isJob = dialog.pages > 0;
        box.setOption(QAbstractPrintDialog::PrintPageRange, isJob);
        box.setOption(QAbstractPrintDialog::PrintCurrentPage, isJob && dialog.hasShownPage);
        box.setOption(QAbstractPrintDialog::PrintToFile, isJob);
        if (isJob) {
            box.setMinMax(1, dialog.pages);
            box.setFromTo(1, dialog.pages);
        } else if (auto* buttons = box.findChild<QDialogButtonBox*>()) {
            buttons->button(QDialogButtonBox::Ok)->setText("OK");
        }
        return box.exec() == QDialog::Accepted;
    }
};

std::unique_ptr<DialogService>& Service() {
    static std::unique_ptr<DialogService> service = MakeScreenDialogs();
    return service;
}

}  // namespace

std::unique_ptr<DialogService> MakeScreenDialogs() {
    return std::make_unique<QtDialogs>();
}

DialogService& Dialogs() {
    return *Service();
}

void SetDialogs(std::unique_ptr<DialogService> service) {
    Service() = std::move(service);
}

void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) {
    Dialogs().Message({title, text, Buttons::Ok, icon});
}

Answer Ask(const std::string& title, const std::string& text, Buttons buttons, MessageIcon icon) {
    return Dialogs().Message({title, text, buttons, icon});
}

std::optional<std::string> AskForDatabase(const std::string& title, const std::string& folder) {
    return Dialogs().File({.kind = FileDialog::Kind::Open,
                           .title = title,
                           .filter = "TENDO Database (*.mdb)|*.mdb",
                           .fileName = "*.mdb",
                           .folder = folder,
                           .defaultExtension = "mdb"});
}

}  // namespace tendo
