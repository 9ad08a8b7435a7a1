#include "reports/screens/send_proposal.h"

#include <QDateTime>
#include <QLineEdit>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/painter_pdf.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"
#include "reports/mail_message.h"
#include "reports/screens/report_desk.h"

namespace tendo {
namespace {

constexpr const char* Title = "Send by E-mail";
constexpr const char* MailProgram = "xdg-email";
constexpr std::int64_t DaysKept = 30, SecondsOfADay = 86400;

/// The mail program reads the file when it likes, some only as the mail is sent: so it stands where
/// nothing deletes it with the program's end.
std::string WriteAttachment(const Document& document) {
    const Hourglass pointer;
    const std::string folder = WithSeparator(WithSeparator(State().ProgramDirectory) + "Mail");
    MakeDirectory(folder);
    DeletePdfsBefore(folder, QDateTime::currentSecsSinceEpoch() - DaysKept * SecondsOfADay);
    const std::string file = FreeFileName(folder, ExportName(".pdf"));
    WritePdf(document, file);
    return file;
}

/// No record keeps the client's address: it stands in its field while the general data are open.
std::string ClientAddress() {
    const Form* general = Form::Find("frmGPD");
    const auto* field =
        general ? qobject_cast<QLineEdit*>(general->Control("txtClientEmailAddress")) : nullptr;
    return field ? field->text().toStdString() : "";
}

ExportNote OfferPdf(const Document& document) {
    const Answer answer =
        Ask(Title,
            "The program xdg-email, which hands mails to your mail program, is not installed on "
            "this computer.  Save the proposal as a PDF file instead, to attach it yourself?",
            Buttons::YesNo);
    return answer == Answer::Yes ? ExportPdf(document) : ExportNote();
}

void TellEnd(int status, const std::string& file) {
    if (status == 0) return;
    ShowMessage(Title,
                "No mail program took the proposal.  It is kept as " + file +
                    ", from where you can attach it to a mail yourself.",
                MessageIcon::Information);
}

}  // namespace

ExportNote SendProposal(const Document& document) {
    if (document.pages.empty()) {
        ShowMessage(Title, "There is nothing to send: the reports have no pages.",
                    MessageIcon::Information);
        return {};
    }
    try {
        const std::string file = WriteAttachment(document);
        const bool started =
            DeskOfReports().Run(MailProgram, MailArguments(document.title, ClientAddress(), file),
                                [file](int status) { TellEnd(status, file); });
        if (started) return "Handed to your mail program: " + file;
        DeleteFileIfThere(file);
    } catch (const RuntimeError& error) {
        ShowMessage(Title, error.Description(), MessageIcon::Warning);
        return {};
    }
    return OfferPdf(document);
}

}  // namespace tendo
