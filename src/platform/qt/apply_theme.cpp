#include "platform/qt/apply_theme.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QFontMetrics>
#include <QPalette>
#include <QTimer>
#include <QWidget>
#include <map>

#include "platform/qt/alt_letters.h"
#include "platform/qt/desktop_colors.h"
#include "platform/qt/enhanced_input.h"
#include "platform/qt/pasted_text.h"
#include "platform/qt/style.h"
#include "platform/qt/theme.h"

// Must stand outside any namespace.
static void InitResources() {
    Q_INIT_RESOURCE(platform_qt);
}

namespace tendo {
namespace {

ThemeColors LightColors() {
    return {.window = "#f6f8fa",
            .workspace = "#e9edf1",
            .field = "#ffffff",
            .figure = "#eef2f5",
            .line = "#d3dae1",
            .text = "#1c2530",
            .secondary = "#5c6a79",
            .accent = "#0b66c3",
            .accentText = "#ffffff",
            .selection = "#d6e8fa",
            .fresh = "#fff2c4",
            .negative = "#b9322a",
            .accessory = "#0000c0",
            .cooling = "#1f78d8",
            .heating = "#d65f28",
            .water = "#128a83",
            .dark = false};
}

ThemeColors DarkColors() {
    return {.window = "#1b2128",
            .workspace = "#12161b",
            .field = "#222a33",
            .figure = "#1d242c",
            .line = "#36424f",
            .text = "#e4eaf0",
            .secondary = "#98a6b5",
            .accent = "#62aef7",
            .accentText = "#10161c",
            .selection = "#1f3f5f",
            .fresh = "#4a4018",
            .negative = "#ff7b72",
            .accessory = "#9fb0ff",
            .cooling = "#5aa7f2",
            .heating = "#ef8a55",
            .water = "#3fbab2",
            .dark = true};
}

QPalette PaletteOf(const ThemeColors& colors) {
    QPalette palette;
    const std::map<QPalette::ColorRole, QColor> roles = {
        {QPalette::Window, colors.window},
        {QPalette::WindowText, colors.text},
        {QPalette::Base, colors.field},
        {QPalette::AlternateBase, colors.figure},
        {QPalette::Text, colors.text},
        {QPalette::Button, colors.field},
        {QPalette::ButtonText, colors.text},
        {QPalette::Highlight, colors.accent},
        {QPalette::HighlightedText, colors.accentText},
        {QPalette::ToolTipBase, colors.field},
        {QPalette::ToolTipText, colors.text},
        {QPalette::PlaceholderText, colors.secondary},
        {QPalette::Link, colors.accent},
        {QPalette::Light, colors.field},
        {QPalette::Midlight, colors.figure},
        {QPalette::Mid, colors.line},
        {QPalette::Dark, colors.line},
        {QPalette::Shadow, colors.workspace},
    };
    for (const auto& [role, color] : roles)
        palette.setColor(role, color);
    QColor faded = colors.secondary;
    faded.setAlpha(140);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    return palette;
}

/// The sheet names colours by "@name"; they are put in here.
QString SheetOf(const ThemeColors& colors) {
    QFile file(":/tendo/theme.qss");
    if (!file.open(QIODevice::ReadOnly)) return {};
    QString sheet = QString::fromUtf8(file.readAll());
    sheet.replace("@checkIcon", colors.dark ? "check-dark" : "check-light");
    QColor soft = colors.accent;
    soft.setAlphaF(0.22F);
    QColor hover = colors.accent;
    hover.setAlphaF(0.10F);
    QColor faded = colors.secondary;
    faded.setAlphaF(0.6F);
    const std::pair<const char*, QColor> names[] = {
        {"@accentText", colors.accentText},
        {"@accentSoft", soft},
        {"@accentHover", hover},
        {"@accent", colors.accent},
        {"@window", colors.window},
        {"@workspace", colors.workspace},
        {"@field", colors.field},
        {"@figure", colors.figure},
        {"@line", colors.line},
        {"@text", colors.text},
        {"@secondary", colors.secondary},
        {"@selection", colors.selection},
        {"@fresh", colors.fresh},
        {"@negative", colors.negative},
        {"@accessory", colors.accessory},
        {"@cooling", colors.cooling},
        {"@heating", colors.heating},
        {"@water", colors.water},
        {"@faded", faded},
    };
    for (const auto& [name, color] : names) {
        sheet.replace(name, QString("rgba(%1,%2,%3,%4)")
                                .arg(color.red())
                                .arg(color.green())
                                .arg(color.blue())
                                .arg(color.alpha()));
    }
    const int text = QFontMetrics(BodyFont()).height();
    sheet.replace("@bodyInField", QString("%1px").arg(std::max(text + 3, 20)));
    sheet.replace("@bodyInButton", QString("%1px").arg(std::max(text + 1, 16)));
    // Around a question mark of the small size; the border comes on top.
    const int ring = QFontMetrics(HeadingFont()).height() + 3;
    sheet.replace("@halfRing", QString("%1px").arg(ring / 2 + 1));
    sheet.replace("@ring", QString("%1px").arg(ring / 2 * 2));
    sheet.replace("@small", QString("%1pt").arg(HeadingFont().pointSizeF()));
    return sheet;
}

/// Takes the desktop's colours on again when the desktop changes them.
class DesktopFollower : public QObject {
  public:
    explicit DesktopFollower(QApplication& application)
        : QObject(&application), application_(application) {
        application.installEventFilter(this);
        // Not every desktop tells its change; who changed it comes back from its settings.
        connect(&application, &QGuiApplication::applicationStateChanged, this,
                [this](Qt::ApplicationState state) {
                    if (state == Qt::ApplicationActive)
                        AskWhetherDark([this](bool dark) { TakeOn(dark); });
                });
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        // Every window is told; one answer, once they all are, is enough.
        if (event->type() == QEvent::ThemeChange && !waiting_) {
            waiting_ = true;
            QTimer::singleShot(0, this, [this] { Follow(); });
        }
        return QObject::eventFilter(object, event);
    }

  private:
    void Follow() {
        Apply(DesktopIsDark());
        waiting_ = false;
    }

    void TakeOn(bool dark) {
        if (dark != Theme().dark) Apply(dark);
    }

    void Apply(bool dark) {
        ApplyTheme(application_, dark);
        for (QWidget* widget : QApplication::allWidgets())
            widget->update();
    }

    QApplication& application_;
    bool waiting_ = false;
};

}  // namespace

void ApplyTheme(QApplication& application) {
    ApplyTheme(application, DesktopIsDark());
    new DesktopFollower(application);
}

void ApplyTheme(QApplication& application, bool dark) {
    InitResources();
    GuardFieldsFromWheel();
    WatchAltKey();
    WatchPasting();
    SetThemeColors(dark ? DarkColors() : LightColors());
    application.setStyleSheet({});
    application.setStyle(new TendoStyle);
    application.setPalette(PaletteOf(Theme()));
    application.setFont(BodyFont());
    application.setStyleSheet(SheetOf(Theme()));
}

}  // namespace tendo
