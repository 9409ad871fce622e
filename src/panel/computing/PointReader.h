#pragma once

#include "panel/computing/PointLayout.h"

#include <memory>

class QTextDecoder;

/// Reads points from a text that comes piece by piece. Every line that is not empty (but a heading) is a row of the
/// table, also one that can't be read.
class PointReader {
public:
    /// No line of points is longer, in bytes; what is, is kept to this length.
    static constexpr std::size_t longestLine = 10000;

    /// Lengths in the text are in units of `metresPerUnit`. `table` outlives the reader.
    PointReader(PointLayout layout, double metresPerUnit, PointTable& table);
    ~PointReader();

    /// The next bytes of the text, in UTF-8, UTF-16 with a byte-order mark, or the older encoding of the user's system.
    void add(const QByteArray& bytes);

    /// The text is at its end.
    void finish();

    /// The beginning of a text as UTF-8, for PointLayout::guess().
    static QByteArray decodedHead(const QByteArray& bytes);

    /// Why a file that begins with `head` is no text with points, in one sentence, translated; empty where it may be.
    static QString refusal(const QByteArray& head);

private:
    void addStart();
    void addDecoded(const QByteArray& bytes);
    void addText(std::string_view text);
    void endLine();
    void readLine(std::string_view line);
    bool readNumber(PointColumn column, std::string_view text, double* value) const;

    PointLayout layout;
    double metresPerUnit;
    PointTable& table;
    std::unique_ptr<QTextDecoder> decoder; ///< of UTF-16
    QString half;                          ///< of a letter of two words, whose second is still to come
    bool isStart = true;
    QByteArray start; ///< too short to tell a byte-order mark
    bool isHeadingNext;
    bool isTooLong = false;
    std::string rest; ///< of a line whose end is still to come
    std::vector<std::string_view> fields;
    std::string unquoted;
};
