#include "equipment/screens/model_field_help.h"

#include <QListWidget>

#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "project/screens/frm_help_info.h"

namespace tendo {
namespace {

constexpr const char* pricePrompt = "Please Enter the Model Cost:";  // of cost and price alike

/// What the choices' screen says of a field.
HelpInfo ChoicesOf(const ModelField& field, const std::string& text) {
    HelpInfo info;
    info.title = SpokenLabel(field).toStdString();
    info.text = "Choose what the proposal is to say under \"" + info.title +
                "\". Any other text can be typed into the field itself.";
    for (const char* choice : field.choices) {
        info.options.emplace_back(choice);
        if (text == choice) info.option = static_cast<int>(info.options.size());
    }
    return info;
}

std::optional<std::string> AskForPrice(const ModelField& field, const std::string& text) {
    const std::string prompt = std::string(field.help) + "\n\n" + pricePrompt;
    return Dialogs().Input({SpokenLabel(field).toStdString(), prompt, text});
}

}  // namespace

bool HasHelp(const ModelField& field) {
    return !field.choices.empty() || field.kind == ModelFieldKind::Money;
}

QString SpokenLabel(const ModelField& field) {
    return QString(field.label).remove('&').remove(':');
}

QListWidget* MakeChoiceList(const ModelField& field, TextField* line) {
    auto* list = new QListWidget(line);
    list->setWindowFlag(Qt::Popup);
    list->setObjectName(QString(field.name).replace("txt", "lst"));
    list->setAccessibleName("Choices for " + SpokenLabel(field));
    for (const char* choice : field.choices)
        list->addItem(choice);
    // Queued, for the field takes the choice first.
    for (const auto taken : {&QListWidget::itemActivated, &QListWidget::itemClicked})
        QObject::connect(list, taken, line, &TextField::Commit, Qt::QueuedConnection);
    list->setFixedHeight(list->sizeHintForRow(0) * list->count() + 2 * list->frameWidth() + 4);
    return list;
}

std::optional<std::string> AskForText(const ModelField& field, const std::string& text) {
    if (field.kind == ModelFieldKind::Money) return AskForPrice(field, text);
    HelpInfo info = ChoicesOf(field, text);
    if (!ShowHelpInfo(info) || info.option == 0) return std::nullopt;
    return field.choices[static_cast<std::size_t>(info.option - 1)];
}

}  // namespace tendo
