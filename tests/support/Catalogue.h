#pragma once

#include <QFile>
#include <QMultiHash>
#include <QString>
#include <QXmlStreamReader>

/// The texts of a catalogue of translations, for who has to find by the source's text what the tool shows in another
/// language. An empty one is that of the sources' own language.
class Catalogue {
public:
    Catalogue() = default;

    /// A file of Qt Linguist, *.ts. Plural forms are left out.
    explicit Catalogue(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("Can't read %s", qPrintable(path));
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == "source")
                source = xml.readElementText();
            else if (xml.name() == "translation")
                texts.insert(source, xml.readElementText(QXmlStreamReader::SkipChildElements));
        }
        if (xml.hasError())
            qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    }

    const QMultiHash<QString, QString>& all() const { return texts; }

    /// The source itself where the catalogue has no other text; where it has several, one of them.
    QString translated(const QString& source) const { return texts.value(source, source); }

    /// Whether what is shown is the source or its translation, whatever key is underlined in it.
    bool means(QString shown, const QString& source) const {
        shown.remove('&');
        if (shown == source)
            return true;
        for (auto text = texts.find(source); text != texts.end() && text.key() == source; ++text) {
            if (QString(*text).remove('&') == shown)
                return true;
        }
        return false;
    }

private:
    QMultiHash<QString, QString> texts;
};
