#pragma once

#include <QMultiHash>
#include <QString>

/// The texts of a catalogue of translations, for who has to find by the source's text what the tool shows in another
/// language. An empty one is that of the sources' own language.
class Catalogue {
public:
    Catalogue() = default;

    /// A file of Qt Linguist, *.ts. Plural forms are left out.
    explicit Catalogue(const QString& path);

    const QMultiHash<QString, QString>& all() const { return texts; }

    /// The source itself where the catalogue has no other text; where it has several, one of them.
    QString translated(const QString& source) const;

    /// Whether what is shown is the source or its translation, whatever key is underlined in it.
    bool means(QString shown, const QString& source) const;

private:
    QMultiHash<QString, QString> texts;
};
