#include "panel/check/CheckReport.h"

#include "panel/check/ReportPdf.h"
#include "panel/check/ReportWriting.h"
#include "panel/computing/DuplicateNames.h"
#include "panel/computing/PointReader.h"
#include "panel/computing/ShownSystem.h"
#include "panel/record/AngleText.h"
#include "support/DiskLimits.h"
#include "support/Files.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Script.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QThreadPool>

#include <cmath>

namespace {

/// A check of points. A script starts with a record as of PanelRecords::of().
///   done: "points=text" (lines parted by "/"), "many=5000" of points with both pairs, number 10 with 3 m too much, the
///   others with 0.01 mm more each,
///         "left out=2", "uncomputed", "tolerance", "datum=WGS 84", "unit=ft", "unit changes meanwhile", "dms";
///         "html" and "pdf" write a report
///   seen: "text" of the HTML as a browser shows it, "html" itself, "pages" of the PDF
class ReportedCheck : public Script {
public:
    explicit ReportedCheck(const QString& start) : system(ShownSystem::of(*PanelRecords::of(start), nullptr)) {
        acts["points"] = [this](const QString& text) { read(QString(text).replace('/', '\n').toUtf8()); };
        acts["many"] = [this](const QString& count) { addMany(count.toInt()); };
        acts["left out"] = [this](const QString& row) { points.setUsed(std::size_t(row.toInt() - 1), false); };
        acts["uncomputed"] = [this](const QString&) { isComputed = false; };
        acts["tolerance"] = [this](const QString& metres) { tolerance = metres.toDouble(); };
        acts["datum"] = [this](const QString&) { datum = CheckPoint::Datum::Wgs84; };
        acts["unit"] = [](const QString& unit) {
            LengthUnit::choose(unit == "ft" ? LengthUnit::InternationalFoot : LengthUnit::UsSurveyFoot);
        };
        acts["unit changes meanwhile"] = [this](const QString&) { isUnitChanged = true; };
        acts["dms"] = [](const QString&) { AngleText::setNotation(AngleNotation::DegreesMinutesSeconds); };
        acts["html"] = [this](const QString&) {
            QCOMPARE(write(folder.filePath("report.html"), ReportWriting::Form::Html), QString());
            html = QString::fromUtf8(contentOf(folder.filePath("report.html")));
        };
        acts["pdf"] = [this](const QString&) {
            QCOMPARE(write(folder.filePath("report.pdf"), ReportWriting::Form::Pdf), QString());
        };
        sights["text"] = [this](const QString&) {
            QTextDocument document;
            document.setHtml(html);
            return document.toPlainText().replace('\n', ' ');
        };
        sights["html"] = [this](const QString&) { return html; };
        sights["pages"] = [this](const QString&) {
            return QString::number(contentOf(folder.filePath("report.pdf")).count("/Type /Page\n"));
        };
    }

    ~ReportedCheck() override {
        AngleText::setNotation(AngleNotation::DecimalDegrees);
        LengthUnit::choose(LengthUnit::Metre);
    }

    void addMany(int count) {
        for (int i = 1; i <= count; ++i) {
            const GeographicPoint place{51.0 + i * 1e-3, -3.0 + i % 100 * 1e-3, 45.0};
            const auto grid = system->projection()->toGrid(place);
            const std::size_t row = points.append(std::to_string(i));
            points.setGiven(row, PointColumn::Latitude, place.latitude);
            points.setGiven(row, PointColumn::Longitude, place.longitude);
            points.setGiven(row, PointColumn::Easting, grid->easting + (i == 10 ? 3.0 : i * 1e-5));
            points.setGiven(row, PointColumn::Northing, grid->northing);
        }
    }

    /// Why it was not written. With `isCancelled` it ends while the thread works.
    QString write(const QString& path, ReportWriting::Form form, bool isCancelled = false) {
        points.compute(0, points.size(), isComputed ? system->projection() : nullptr, datum);
        DuplicateNames(points).mark(points.size() * 2);
        ReportWriting writing({system, &points, datum, tolerance}, path, form);
        double part = 0.0, before = 0.0;
        while (part < (isCancelled ? 0.55 : 1.0)) {
            part = writing.step();
            if (part < before)
                return QString("back from %1 to %2").arg(before).arg(part);
            before = part;
            if (isUnitChanged)
                LengthUnit::choose(LengthUnit::UsSurveyFoot);
        }
        return writing.error();
    }

    QTemporaryDir folder;

private:
    void read(const QByteArray& text) {
        PointReader reader(PointLayout::guess(text), 1.0, points);
        reader.add(text);
        reader.finish();
    }

    std::shared_ptr<const ShownSystem> system;
    PointTable points;
    CheckPoint::Datum datum = CheckPoint::Datum::Own;
    double tolerance = 0.05;
    bool isComputed = true;
    bool isUnitChanged = false;
    QString html;
};

} // namespace

/// The report of a check, over the real projection module.
class CheckReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"report.txt"}); }

    void script() {
        QFETCH(QString, start);
        ReportedCheck(start).play();
    }

    /// Whatever goes wrong, what was at the path stays, and nothing beside it.
    void oldReportStays() {
        ReportedCheck check("British grid");
        check.addMany(50);
        const QString path = check.folder.filePath("report.pdf");
        QVERIFY(setContent(path, "old"));
        for (const auto form : {ReportWriting::Form::Pdf, ReportWriting::Form::Html}) {
            QCOMPARE(check.write(path, form, true), QString());
            QThreadPool::globalInstance()->waitForDone();
            QCOMPARE(contentOf(path), QByteArray("old"));
            const FileSizeLimit fullDisk(20000);
            if (fullDisk.works)
                QVERIFY(!check.write(path, form).isEmpty());
        }
        {
            const OrdinaryUser user; // whose folder it is not
            if (user.works)
                QVERIFY(!check.write(path, ReportWriting::Form::Pdf).isEmpty());
        }
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(QDir(check.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("report.pdf"));
    }

    /// No heading stands at the end of a page.
    void headings() {
        QTemporaryDir folder;
        const auto pages = [&](int lines) {
            ReportPdf pdf;
            for (int i = 0; i < lines; ++i)
                pdf.html += "<p>line</p>";
            pdf.html += "<h2>heading</h2><p>line</p>";
            setContent(folder.filePath("x.pdf"), pdf.write([](double) { return true; }));
            QProcess text;
            text.start("pdftotext", {folder.filePath("x.pdf"), "-"});
            text.waitForFinished();
            return QString::fromUtf8(text.readAll()).split('\f', Qt::SkipEmptyParts);
        };
        int lines = 20;
        QVERIFY(pages(lines).size() < 2);
        while (pages(lines).size() == 1)
            ++lines;
        if (pages(lines).isEmpty())
            QSKIP("needs pdftotext");
        QVERIFY(pages(lines).last().contains("heading"));
    }
};

ROOM_TEST(CheckReportTest)
#include "CheckReportTest.moc"
