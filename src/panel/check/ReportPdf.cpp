#include "panel/check/ReportPdf.h"

#include "panel/record/PanelText.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

namespace {

constexpr double margin = 15.0;     ///< millimetres
constexpr double footShare = 0.035; ///< of the page's height
constexpr double layoutShare = 0.6; ///< of all the work

int pageOf(const QTextDocument& document, const QTextBlock& block) {
    return int(document.documentLayout()->blockBoundingRect(block).bottom() / document.pageSize().height());
}

/// Moves every heading whose text would begin on the next page there.
void keepHeadings(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlock next = block.next();
        if (block.blockFormat().headingLevel() == 0 || !next.isValid() ||
            pageOf(document, block) == pageOf(document, next))
            continue;
        QTextBlockFormat format = block.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).setBlockFormat(format);
    }
}

void drawPage(QPainter& painter, QTextDocument& document, int page) {
    const QSizeF size = document.pageSize();
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(QPointF(0.0, page * size.height()), size);
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.save();
    painter.translate(0.0, -context.clip.top());
    painter.setClipRect(context.clip);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

} // namespace

QByteArray ReportPdf::write(const std::function<bool(double)>& goesOn) const {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    writer.setTitle(title);
    writer.setCreator(creator);
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::LosslessImageRendering);

    const QSizeF paper(writer.width(), writer.height());
    const double foot = paper.height() * footShare;
    QTextDocument document;
    QFont plain(font);
    plain.setLetterSpacing(QFont::PercentageSpacing, 100.01); // without ligatures, which a search would not find
    document.setDefaultFont(plain);
    document.setDocumentMargin(0.0);
    for (auto picture = pictures.begin(); picture != pictures.end(); ++picture)
        document.addResource(QTextDocument::ImageResource, QUrl(picture.key()), picture.value());
    document.documentLayout()->setPaintDevice(&writer);
    document.setUseDesignMetrics(true);
    document.setPageSize(QSizeF(paper.width(), paper.height() - foot));
    document.setHtml(html);
    if (!goesOn(layoutShare / 2.0))
        return {};
    keepHeadings(document);
    const int count = document.pageCount();
    QFont small(font);
    small.setPointSizeF(7.5);
    painter.setFont(small);
    const QRectF footLine(0.0, paper.height() - foot, paper.width(), foot);
    for (int page = 0; page < count; ++page) {
        if (!goesOn(layoutShare + (1.0 - layoutShare) * page / count))
            return {};
        if (page > 0)
            writer.newPage();
        drawPage(painter, document, page);
        painter.setPen(Qt::darkGray);
        const QString number = PanelText::tr("Page %1 of %2").arg(page + 1).arg(count);
        const double room = paper.width() * 0.8;
        painter.drawText(footLine, Qt::AlignRight | Qt::AlignBottom, number);
        painter.drawText(footLine, Qt::AlignLeft | Qt::AlignBottom,
                         painter.fontMetrics().elidedText(title.simplified(), Qt::ElideRight, int(room)));
    }
    painter.end();
    return buffer.data();
}
