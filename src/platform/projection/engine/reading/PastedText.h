#pragma once

#include <QByteArray>

/// A text as somebody pasted it, and which of the forms of a definition it has.
struct PastedText {
    enum class Form { None, Wkt, Json, ProjItems, Identifier };

    static constexpr int longest = 100000; ///< bytes; GDAL takes no longer WKT. More has no form

    explicit PastedText(const QByteArray& given);

    QByteArray text; ///< without a byte-order mark, blanks and quotes around it; a copy's quotes inside are plain ones
    int start = 0;   ///< where it begins in what was given
    Form form = Form::None;
    QByteArray keyword;   ///< of WKT, in capitals
    QByteArray authority; ///< of an identifier
    QByteArray code;
    bool hasSecondCode = false; ///< that of a height system: "EPSG:25832+7837"
};
