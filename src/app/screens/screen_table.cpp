#include "app/screens/screen_table.h"

#include <QMap>

namespace tendo {
namespace {

QMap<QString, std::function<Form*()>>& Screens() {
    static QMap<QString, std::function<Form*()>> screens;
    return screens;
}

}  // namespace

void RegisterScreen(const QString& name, std::function<Form*()> make) {
    Screens()[name] = std::move(make);
}

bool ScreenExists(const QString& name) {
    return Screens().contains(name);
}

QStringList ScreenNames() {
    return Screens().keys();
}

Form* LoadScreen(const QString& name) {
    if (Form* loaded = Form::Find(name)) return loaded;
    const auto found = Screens().constFind(name);
    return found == Screens().constEnd() ? nullptr : (*found)();
}

void ShowScreen(const QString& name) {
    if (Form* form = LoadScreen(name)) form->ShowForm();
}

}  // namespace tendo
