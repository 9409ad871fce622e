#pragma once

#include <QLocale>

class QTextCodec;

/// The encoding of texts that the user's programs wrote before they wrote UTF-8: on Windows the system's own ("ANSI"),
/// elsewhere the one that Windows has in the language of `user`. Never null.
const QTextCodec* olderEncoding(const QLocale& user = QLocale::system());

/// `bytes` in that encoding; what is none there is Latin-1, from a Western program (a degree sign before digits, say).
QString olderText(const QByteArray& bytes, const QLocale& user = QLocale::system());
