#include "panel/check/PointSaving.h"

#include "panel/check/SlicedWork.h"
#include "panel/record/LengthUnit.h"

#include <algorithm>
#include <chrono>

namespace {

constexpr const char* utf8Mark = "\xef\xbb\xbf"; ///< tells a spreadsheet that it is UTF-8

} // namespace

PointSaving::PointSaving(const PointTable& points, const QString& path, PointWriter::Digits digits)
    : points(points), file(path), writer(points, ',', digits, LengthUnit::metres()) {
    isFailed = !file.open(QIODevice::WriteOnly) || file.write(utf8Mark + writer.heading()) < 0;
}

double PointSaving::write() {
    if (isFailed)
        return 1.0;
    constexpr double last = 0.99; // until it is in its place
    if (committed.valid()) {
        if (committed.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready)
            return last;
        isFailed = !committed.get();
        return 1.0;
    }
    std::string text;
    const std::size_t end = std::min(next + SlicedWork::rowsPerPiece, points.size());
    for (; next < end; ++next)
        writer.write(next, text);
    isFailed = file.write(text.data(), qint64(text.size())) < 0;
    if (isFailed)
        return 1.0;
    if (end == points.size())
        committed = std::async(std::launch::async, [this] { return file.commit(); });
    return last * double(end) / double(std::max<std::size_t>(points.size(), 1));
}
