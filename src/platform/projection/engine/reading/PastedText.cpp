#include "platform/projection/engine/reading/PastedText.h"

#include <QRegularExpression>
#include <QString>

#include <initializer_list>

namespace {

struct Pair {
    const char* open;
    const char* close;
};

constexpr const char* blanks[] = {" ", "\t", "\r", "\n", "\f", "\v", "\xC2\xA0", "\xE2\x80\x8B", "\xEF\xBB\xBF"};

/// Signs that a mail, a document or a program puts around what it quotes.
constexpr Pair quotes[] = {{"\"", "\""},
                           {"'", "'"},
                           {"`", "`"},
                           {"\xE2\x80\x9C", "\xE2\x80\x9D"},
                           {"\xE2\x80\x9E", "\xE2\x80\x9C"},
                           {"\xE2\x80\x98", "\xE2\x80\x99"}};

/// What is left between blanks and quotes.
class Peeler {
public:
    explicit Peeler(const QByteArray& text) : text(text), end(text.size()) {}

    void peel() {
        while (takeBlank() || takeQuotes()) {
        }
    }
    int begin() const { return start; }
    QByteArray rest() const { return text.mid(start, end - start); }

private:
    bool startsWith(const char* sign) const {
        const int length = int(qstrlen(sign));
        return length <= end - start && qstrncmp(text.constData() + start, sign, uint(length)) == 0;
    }
    bool endsWith(const char* sign) const {
        const int length = int(qstrlen(sign));
        return length <= end - start && qstrncmp(text.constData() + end - length, sign, uint(length)) == 0;
    }

    bool takeBlank() {
        for (const char* const blank : blanks) {
            const int length = int(qstrlen(blank));
            if (startsWith(blank)) {
                start += length;
                return true;
            }
            if (endsWith(blank)) {
                end -= length;
                return true;
            }
        }
        return false;
    }

    bool takeQuotes() {
        for (const Pair& pair : quotes) {
            const int open = int(qstrlen(pair.open));
            const int close = int(qstrlen(pair.close));
            if (end - start >= open + close && startsWith(pair.open) && endsWith(pair.close)) {
                start += open;
                end -= close;
                return true;
            }
        }
        return false;
    }

    const QByteArray& text;
    int start = 0;
    int end;
};

/// Word processors turn the quotes of WKT. What comes in their place has the same length, so that places stay, and its
/// blanks lie outside the quotes.
void straightenQuotes(QByteArray& text) {
    if (text.contains('"'))
        return;
    text.replace("\xE2\x80\x9C", "  \"").replace("\xE2\x80\x9E", "  \"").replace("\xE2\x80\x9D", "\"  ");
}

} // namespace

PastedText::PastedText(const QByteArray& given) {
    const int nul = given.indexOf('\0');
    const QByteArray upToNul = nul < 0 ? given : given.left(nul);
    Peeler peeler(upToNul);
    peeler.peel();
    start = peeler.begin();
    text = peeler.rest();
    if (text.size() > longest)
        return;
    static const QRegularExpression wkt(R"(^([A-Za-z_0-9]+)\s*[\[(])");
    static const QRegularExpression items(R"((^|\s|\+)(proj|init)\s*=)");
    constexpr int longestHead = 200;
    const QString head = QString::fromUtf8(text.left(longestHead));
    const QRegularExpressionMatch node = wkt.match(head);
    if (text.startsWith('{')) {
        form = Form::Json;
        return;
    }
    if (node.hasMatch()) {
        form = Form::Wkt;
        keyword = node.captured(1).toUpper().toLatin1();
        straightenQuotes(text);
        return;
    }
    if (text.startsWith('+') || items.match(QString::fromUtf8(text)).hasMatch()) {
        form = Form::ProjItems;
        return;
    }
    // OGC 05-010 and 09-048, and what web pages and people write.
    static const QRegularExpression identifiers[] = {
        QRegularExpression(R"(^()(\d{4,6})$)"),
        QRegularExpression(R"(^([A-Za-z][A-Za-z_0-9]*)\s*::?\s*([A-Za-z0-9_.-]+)(\s*\+\s*\d+)?$)"),
        QRegularExpression(R"(^([A-Za-z][A-Za-z_0-9]*)\s+(\d+)$)"),
        QRegularExpression(R"(^urn:(?:x-)?ogc:def:crs:(\w+):[^:]*:([A-Za-z0-9_.-]+)()$)",
                           QRegularExpression::CaseInsensitiveOption),
        QRegularExpression(R"(^https?://(?:www\.)?opengis\.net/def/crs/(\w+)/[^/]+/([A-Za-z0-9_.-]+?)/?$)",
                           QRegularExpression::CaseInsensitiveOption),
        QRegularExpression(R"(^https?://(?:www\.)?opengis\.net/gml/srs/(\w+)\.xml#([A-Za-z0-9_.-]+)$)",
                           QRegularExpression::CaseInsensitiveOption),
        QRegularExpression(R"(^(?:https?://)?(?:www\.)?spatialreference\.org/ref/(\w+)/([A-Za-z0-9_.-]+?)/?$)",
                           QRegularExpression::CaseInsensitiveOption),
        QRegularExpression(R"(^(?:https?://)?(?:www\.)?epsg\.io/()(\d+)/?$)",
                           QRegularExpression::CaseInsensitiveOption)};
    if (text.size() > longestHead)
        return;
    for (const QRegularExpression& identifier : identifiers) {
        const QRegularExpressionMatch match = identifier.match(head);
        if (!match.hasMatch())
            continue;
        form = Form::Identifier;
        authority = match.captured(1).isEmpty() ? QByteArray("EPSG") : match.captured(1).toUpper().toLatin1();
        code = match.captured(2).toLatin1();
        hasSecondCode = !match.captured(3).isEmpty();
        return;
    }
}
