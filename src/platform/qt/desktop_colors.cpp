#include "platform/qt/desktop_colors.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPalette>
#include <QProcess>
#include <QTimer>
#include <memory>
#include <vector>

namespace tendo {
namespace {

constexpr int answerLimit = 200;  // milliseconds

struct Tool {
    const char* program;
    QStringList arguments;
    QByteArray DesktopSigns::*answer;
};

const std::vector<Tool>& Tools() {
    static const std::vector<Tool> tools = {
        {"gdbus",
         {"call", "--session", "--timeout", "1", "--dest", "org.freedesktop.portal.Desktop",
          "--object-path", "/org/freedesktop/portal/desktop", "--method",
          "org.freedesktop.portal.Settings.Read", "org.freedesktop.appearance", "color-scheme"},
         &DesktopSigns::portal},
        {"gsettings",
         {"get", "org.gnome.desktop.interface", "color-scheme"},
         &DesktopSigns::colorScheme}};
    return tools;
}

/// The tools at work, all at once.
class ToolsAtWork {
  public:
    ToolsAtWork() {
        for (const Tool& tool : Tools()) {
            processes_.push_back(std::make_unique<QProcess>());
            processes_.back()->start(tool.program, tool.arguments);
        }
    }

    void Wait(int limit) {
        QElapsedTimer clock;
        clock.start();
        for (const auto& process : processes_)
            process->waitForFinished(std::max(1, limit - static_cast<int>(clock.elapsed())));
    }

    /// What those that have ended well said; the others are ended.
    DesktopSigns Answers() {
        DesktopSigns signs;
        for (std::size_t i = 0; i < processes_.size(); ++i) {
            QProcess& process = *processes_[i];
            const bool ended = process.state() == QProcess::NotRunning;
            if (!ended) {
                process.kill();
                process.waitForFinished(answerLimit);
            }
            const bool well = ended && process.error() == QProcess::UnknownError &&
                              process.exitStatus() == QProcess::NormalExit &&
                              process.exitCode() == 0;
            if (well) signs.*Tools()[i].answer = process.readAllStandardOutput();
        }
        return signs;
    }

  private:
    std::vector<std::unique_ptr<QProcess>> processes_;
};

bool IsDesktopSession() {
    const QString platform = QGuiApplication::platformName();
    return (platform == "xcb" || platform.startsWith("wayland")) &&
           !qEnvironmentVariableIsEmpty("XDG_CURRENT_DESKTOP");
}

void AddEnvironment(DesktopSigns& signs) {
    signs.wish = qgetenv("TENDO_THEME");
    signs.gtkTheme = qgetenv("GTK_THEME");
}

/// "(<<uint32 1>>,)": 1 is dark, 2 is light, 0 says nothing.
std::optional<bool> PortalSaysDark(const QByteArray& answer) {
    constexpr const char* type = "uint32 ";
    const qsizetype at = answer.indexOf(type);
    if (at < 0) return std::nullopt;
    QByteArray number = answer.mid(at + static_cast<qsizetype>(qstrlen(type)));
    number = number.left(number.indexOf('>'));
    if (number == "1") return true;
    if (number == "2") return false;
    return std::nullopt;
}

}  // namespace

std::optional<bool> SaidToBeDark(const DesktopSigns& signs) {
    if (signs.wish == "dark" || signs.wish == "light") return signs.wish == "dark";
    if (!signs.gtkTheme.isEmpty()) {
        const QByteArray theme = signs.gtkTheme.toLower();
        return theme.endsWith(":dark") || theme.endsWith("-dark");
    }
    if (const auto portal = PortalSaysDark(signs.portal)) return portal;
    if (signs.colorScheme.contains("prefer-dark")) return true;
    if (signs.colorScheme.contains("prefer-light")) return false;
    return std::nullopt;
}

bool IsDark(const DesktopSigns& signs) {
    return SaidToBeDark(signs).value_or(signs.window.lightness() < 128);
}

DesktopSigns AskDesktopTools(int limit) {
    ToolsAtWork tools;
    tools.Wait(limit);
    return tools.Answers();
}

bool DesktopIsDark() {
    DesktopSigns signs;
    AddEnvironment(signs);
    if (!SaidToBeDark(signs) && IsDesktopSession()) signs = AskDesktopTools(answerLimit);
    AddEnvironment(signs);
    QApplication::setPalette(QPalette());
    signs.window = QApplication::palette().color(QPalette::Window);
    return IsDark(signs);
}

void AskWhetherDark(const std::function<void(bool dark)>& told) {
    if (!IsDesktopSession()) return;
    const auto tools = std::make_shared<ToolsAtWork>();
    QTimer::singleShot(answerLimit, qApp, [tools, told] {
        DesktopSigns signs = tools->Answers();
        AddEnvironment(signs);
        if (const auto dark = SaidToBeDark(signs)) told(*dark);
    });
}

}  // namespace tendo
