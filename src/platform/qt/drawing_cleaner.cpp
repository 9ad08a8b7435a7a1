#include "platform/qt/drawing_cleaner.h"

#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <array>
#include <utility>
#include "platform/qt/drawing_parts.h"

namespace tendo {

namespace {

constexpr int MostEntityLetters = 65536;
constexpr int DeepestElement = 200;
constexpr double MostParts = 200000;  // with those that are repeated by reference

bool IsLink(QStringView name) {
    return name == QLatin1String("href") || name.endsWith(QLatin1String(":href"));
}

bool IsQualified(QStringView name) {
    return name.count(QLatin1Char(':')) <= 1;
}

QStringView LocalName(QStringView name) {
    return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1);
}

bool IsLeftOut(QStringView kind) {
    static const QSet<QString> names = {
        QStringLiteral("script"), QStringLiteral("foreignObject"), QStringLiteral("audio"),
        QStringLiteral("video"),  QStringLiteral("iframe"),
    };
    return names.contains(kind.toString());
}

class Cleaner {
  public:
    Cleaner(std::string_view text, const std::function<QByteArray(const QString&)>& fileContent)
        : fileContent_(fileContent),
          reader_(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()))),
          writer_(&clean_) {
        reader_.setNamespaceProcessing(false);
        reader_.setEntityExpansionLimit(MostEntityLetters);
    }

    QByteArray Run() {
        writer_.writeStartDocument();
        while (!reader_.atEnd()) {
            const auto token = reader_.readNext();
            if (token == QXmlStreamReader::StartElement) Start();
            if (token == QXmlStreamReader::EndElement) End();
            if (token == QXmlStreamReader::Characters)
                writer_.writeCharacters(reader_.text().toString());
            if (deep_ > DeepestElement) return {};
        }
        const bool whole = !reader_.hasError() && parts_.AreWithin(MostParts, DeepestElement);
        return whole ? clean_ : QByteArray();
    }

  private:
    void Start() {
        const QString name = reader_.qualifiedName().toString();
        const QXmlStreamAttributes attributes = reader_.attributes();
        const QString link = Link(attributes);
        const QStringView kind = LocalName(name);
        const bool emptyImage = kind == QLatin1String("image") && link.isEmpty();
        if (IsLeftOut(kind) || emptyImage || !IsQualified(name))
            return reader_.skipCurrentElement();
        writer_.writeStartElement(name);
        if (deep_++ == 0) WriteNamespaces(attributes);
        for (const QXmlStreamAttribute& attribute : attributes)
            if (!IsLink(attribute.qualifiedName()) && IsQualified(attribute.qualifiedName()))
                writer_.writeAttribute(attribute.qualifiedName().toString(),
                                       attribute.value().toString());
        // The older name of links is the one that is understood.
        if (!link.isEmpty()) writer_.writeAttribute(QStringLiteral("xlink:href"), link);
        const bool repeats = kind == QLatin1String("use");
        parts_.Open(attributes.value(QLatin1String("id")).toString(),
                    repeats ? link.mid(1) : QString());
    }

    void End() {
        --deep_;
        parts_.Close();
        writer_.writeEndElement();
    }

    /// Converters leave them out.
    void WriteNamespaces(const QXmlStreamAttributes& attributes) {
        static constexpr std::array Namespaces = {
            std::pair("xmlns", "http://www.w3.org/2000/svg"),
            std::pair("xmlns:xlink", "http://www.w3.org/1999/xlink")};
        for (const auto& [name, address] : Namespaces)
            if (!attributes.hasAttribute(QLatin1String(name)))
                writer_.writeAttribute(QLatin1String(name), QLatin1String(address));
    }

    /// The element's link to a part of the drawing or to a picture within it; empty for any other.
    QString Link(const QXmlStreamAttributes& attributes) const {
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (!IsLink(attribute.qualifiedName())) continue;
            const QString value = attribute.value().toString();
            const bool within = value.startsWith(QLatin1Char('#')) ||
                                value.startsWith(QLatin1String("data:image/"));
            return within ? value : Embedded(value);
        }
        return {};
    }

    QString Embedded(const QString& file) const {
        const QByteArray content = fileContent_ ? fileContent_(file) : QByteArray();
        if (content.isEmpty()) return {};
        return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(content.toBase64());
    }

    const std::function<QByteArray(const QString&)>& fileContent_;
    QXmlStreamReader reader_;
    QByteArray clean_;
    QXmlStreamWriter writer_;
    DrawingParts parts_;
    int deep_ = 0;
};

}  // namespace

QByteArray CleanDrawing(std::string_view text,
                        const std::function<QByteArray(const QString& name)>& fileContent) {
    return Cleaner(text, fileContent).Run();
}

}  // namespace tendo
