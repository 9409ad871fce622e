#include "panel/record/GeoidFile.h"

#include "catalogue/Path.h"
#include "panel/record/PanelText.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

QString GeoidFile::problem(const QString& fileName) {
    if (fileName.isEmpty())
        return PanelText::tr("The model names no file.");
    char path[1000];
    process_resolve_path(path, sizeof path, "$(APP_DIR)/../etc/Vornhalde/data/GeoidData/%s",
                         fileName.toLocal8Bit().constData());
    const QFileInfo file(QString::fromLocal8Bit(path));
    if (!file.exists()) {
        const QStringList alike = file.dir()
                                      .entryList(QDir::Files)
                                      .filter(QRegularExpression('^' + QRegularExpression::escape(fileName) + '$',
                                                                 QRegularExpression::CaseInsensitiveOption));
        return alike.isEmpty() ? PanelText::tr("Not in the folder of geoid models.")
                               : PanelText::tr("The folder of geoid models has \"%1\" instead.").arg(alike.first());
    }
    if (!file.isFile())
        return PanelText::tr("Not a file.");
    return file.size() == 0 ? PanelText::tr("The file is empty.") : QString();
}
