#include "panel/record/ProjectionAdvice.h"

#include "import/CoordParamToProjDefine.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

class ProjectionAdviceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhatIsWrong_data() {
        const Rows<ProjectionMethod, QByteArrayList, QString> row({"method", "values", "message"});
        for (const QByteArrayList& line : textTable("problems.txt"))
            row(line[0], ProjectionMethod(line[1].toInt()), line[2].split(' '), line[3]);
    }

    void saysWhatIsWrong() {
        QFETCH(ProjectionMethod, method);
        QFETCH(QByteArrayList, values);
        QFETCH(QString, message);
        const DictionaryGuard record = PanelRecords::imported(method);
        if (method == ProjectionMethod::LambertOneParallel)
            record->setText(CoordParamKey::orgLat, "46.3");
        PanelRecords::change(*record, values);
        const QString problem = ProjectionAdvice::problem(*record);
        QStringList said(problem);
        if (const ProjectionFields* projection = ProjectionFields::ofRecord(*record)) {
            for (const ParamField& field : projection->fields)
                said << ProjectionAdvice::warning(*projection, field, *record);
        }
        said.removeAll(QString());
        QVERIFY2(message.isEmpty() ? said.isEmpty() : said.join('\n').contains(message), qPrintable(said.join('\n')));
        // The one predicate decides; the advice adds only what no formula can compute.
        if (!coordParamDefinesProjection(*record))
            QVERIFY(problem.startsWith("No projection"));
    }
};

ROOM_TEST(ProjectionAdviceTest)
#include "ProjectionAdviceTest.moc"
