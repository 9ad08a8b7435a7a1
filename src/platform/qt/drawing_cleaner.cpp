#include "platform/qt/drawing_cleaner.h"

#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include "platform/qt/drawing_parts.h"

namespace tendo {

namespace {

constexpr int MostEntityLetters = 65536;
constexpr int DeepestElement = 200;
constexpr double MostParts = 200000;  // with those that are repeated by reference

bool IsLink(QStringView name) {
    return name == QLatin1String("href") || name.endsWith(QLatin1String(":href"));
}

QStringView LocalName(QStringView name) {
    return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1);
}

bool IsLeftOut(QStringView element) {
    static const QSet<QString> names = {
        QStringLiteral("script"), QStringLiteral("foreignObject"), QStringLiteral("audio"),
        QStringLiteral("video"),  QStringLiteral("iframe"),
    };
    return names.contains(LocalName(element).toString());
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
        if (IsLeftOut(name) || name.count(QLatin1Char(':')) > 1)
            return reader_.skipCurrentElement();
        ++deep_;
        writer_.writeStartElement(name);
        QString target;
        for (const QXmlStreamAttribute& attribute : reader_.attributes())
            Write(name, attribute, target);
        parts_.Open(reader_.attributes().value(QLatin1String("id")).toString(), target);
    }

    void End() {
        --deep_;
        parts_.Close();
        writer_.writeEndElement();
    }

    void Write(const QString& element, const QXmlStreamAttribute& attribute, QString& target) {
        const QString name = attribute.qualifiedName().toString();
        if (name.count(QLatin1Char(':')) > 1) return;
        QString value = attribute.value().toString();
        if (IsLink(name)) {
            if (value.startsWith(QLatin1Char('#'))) {
                if (LocalName(element) == QLatin1String("use")) target = value.mid(1);
            } else if (!value.startsWith(QLatin1String("data:image/"))) {
                value = Embedded(value);
                if (value.isEmpty()) return;
            }
        }
        writer_.writeAttribute(name, value);
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
