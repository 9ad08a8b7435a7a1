#include "platform/qt/metafile_converter.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <utility>

#include "platform/print/picture_kind.h"
#include "platform/qt/drawing_cleaner.h"

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace tendo {

namespace {

constexpr int MostMilliseconds = 5000;
constexpr qint64 MostBytes = 16 << 20, MostMemory = 1 << 30;

struct Converter {
    const char* program;
    const char* package;
    QStringList (*arguments)(const QString& from, const QString& to);
};

const Converter& ConverterOf(PictureKind kind) {
    static const Converter plain = {"wmf2svg", "libwmf-bin",
                                    [](const QString& from, const QString& to) -> QStringList {
                                        return {QStringLiteral("-o"), to, from};
                                    }};
    static const Converter enhanced = {
        "emf2svg-conv", "emf2svg", [](const QString& from, const QString& to) -> QStringList {
            return {QStringLiteral("-i"), from, QStringLiteral("-o"), to};
        }};
    return kind == PictureKind::EnhancedMetafile ? enhanced : plain;
}

/// What the process may take of the machine, besides time.
void LimitProcess(QProcess& process) {
#ifdef Q_OS_UNIX
    process.setChildProcessModifier([] {
        const std::pair<decltype(RLIMIT_FSIZE), rlim_t> limits[] = {
            {RLIMIT_FSIZE, MostBytes},
            {RLIMIT_CPU, MostMilliseconds / 1000},
            {RLIMIT_AS, MostMemory},
            {RLIMIT_CORE, 0}};
        for (const auto& [resource, most] : limits) {
            const rlimit limit{most, most};
            setrlimit(resource, &limit);
        }
    });
#else
    Q_UNUSED(process);
#endif
}

/// True when the program ended well and in time.
bool RunIn(const QString& folder, const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    LimitProcess(process);
    process.start(program, arguments);
    if (!process.waitForFinished(MostMilliseconds)) {
        process.kill();
        process.waitForFinished(MostMilliseconds);
        return false;
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QByteArray ContentOf(const QString& path) {
    QFile file(path);
    if (file.size() > MostBytes || !file.open(QIODevice::ReadOnly)) return {};
    return file.readAll();
}

/// A picture that a converter wrote beside its drawing; none by any other name.
QByteArray PictureBeside(const QString& folder, const QString& name) {
    if (name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\'))) return {};
    return ContentOf(folder + QLatin1Char('/') + name);
}

}  // namespace

ConvertedMetafile ConvertMetafile(std::string_view bytes) {
    const Converter& converter = ConverterOf(PictureKindOf(bytes));
    const QString name = QLatin1String(converter.program);
    const QString program = QStandardPaths::findExecutable(name);
    if (program.isEmpty())
        return {
            {},
            QStringLiteral("needs %1 (package %2)").arg(name, QLatin1String(converter.package))};
    const QTemporaryDir folder;
    const QString from = folder.filePath(QStringLiteral("picture"));
    const QString to = folder.filePath(QStringLiteral("drawing.svg"));
    QFile source(from);
    const bool written = folder.isValid() && source.open(QIODevice::WriteOnly) &&
                         source.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
                             static_cast<qint64>(bytes.size());
    source.close();
    if (!written) return {{}, QStringLiteral("could not be converted: no room for it on the disk")};
    if (!RunIn(folder.path(), program, converter.arguments(from, to)))
        return {{}, QStringLiteral("could not be converted by %1").arg(name)};
    const QByteArray drawing = ContentOf(to);
    const auto beside = [&](const QString& file) { return PictureBeside(folder.path(), file); };
    const QByteArray clean =
        CleanDrawing({drawing.constData(), static_cast<std::size_t>(drawing.size())}, beside);
    if (clean.isEmpty()) return {{}, QStringLiteral("could not be converted by %1").arg(name)};
    return {clean, {}};
}

}  // namespace tendo
