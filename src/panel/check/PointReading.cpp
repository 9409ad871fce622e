#include "panel/check/PointReading.h"

#include <QFileDevice>

PointReading::PointReading(std::unique_ptr<QIODevice> source, const PointLayout& layout, double metresPerUnit)
    : source(std::move(source)), reader(layout, metresPerUnit, table) {
}

double PointReading::read() {
    constexpr qint64 bytesPerPiece = 32768;
    const QByteArray bytes = source->read(bytesPerPiece);
    reader.add(bytes);
    if (isTooMuch())
        return 1.0;
    if (bytes.isEmpty() || source->atEnd()) {
        reader.finish();
        return 1.0;
    }
    return source->size() > 0 ? 0.999 * double(source->pos()) / double(source->size()) : 0.0;
}

QString PointReading::error() const {
    const auto* file = qobject_cast<const QFileDevice*>(source.get());
    return file && file->error() != QFileDevice::NoError ? file->errorString() : QString();
}
