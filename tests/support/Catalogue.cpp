#include "support/Catalogue.h"

#include <QFile>
#include <QXmlStreamReader>

Catalogue::Catalogue(const QString& path) {
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

QString Catalogue::translated(const QString& source) const {
    return texts.value(source, source);
}

bool Catalogue::means(QString shown, const QString& source) const {
    shown.remove('&');
    if (shown == source)
        return true;
    for (auto text = texts.find(source); text != texts.end() && text.key() == source; ++text) {
        if (QString(*text).remove('&') == shown)
            return true;
    }
    return false;
}
