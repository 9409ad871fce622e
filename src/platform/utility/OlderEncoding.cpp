#include "catalogue/OlderEncoding.h"

#include <QTextCodec>

#include <map>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {

constexpr int western = 1252;

#ifdef Q_OS_WIN

// Not GetACP(): that is UTF-8 where the program's manifest asks for it.
int codePage(const QLocale&) {
    DWORD number = 0;
    const int words = GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                                     reinterpret_cast<wchar_t*>(&number), sizeof number / sizeof(wchar_t));
    return words > 0 ? int(number) : western;
}

#else

// As in Microsoft's table of locales ("ANSI codepage").
int codePage(const QLocale& locale) {
    static const std::map<QLocale::Language, int> others = {
        {QLocale::Albanian, 1250},   {QLocale::Croatian, 1250},   {QLocale::Czech, 1250},
        {QLocale::Hungarian, 1250},  {QLocale::Polish, 1250},     {QLocale::Romanian, 1250},
        {QLocale::Slovak, 1250},     {QLocale::Slovenian, 1250},  {QLocale::Belarusian, 1251},
        {QLocale::Bosnian, 1250},    {QLocale::Bulgarian, 1251},  {QLocale::Kazakh, 1251},
        {QLocale::Macedonian, 1251}, {QLocale::Russian, 1251},    {QLocale::Ukrainian, 1251},
        {QLocale::Greek, 1253},      {QLocale::Turkish, 1254},    {QLocale::Hebrew, 1255},
        {QLocale::Arabic, 1256},     {QLocale::Persian, 1256},    {QLocale::Estonian, 1257},
        {QLocale::Latvian, 1257},    {QLocale::Lithuanian, 1257}, {QLocale::Vietnamese, 1258},
        {QLocale::Thai, 874},        {QLocale::Japanese, 932},    {QLocale::Korean, 949},
    };
    if (locale.language() == QLocale::Chinese)
        return locale.script() == QLocale::TraditionalHanScript ? 950 : 936;
    if (locale.language() == QLocale::Serbian)
        return locale.script() == QLocale::LatinScript ? 1250 : 1251;
    const auto other = others.find(locale.language());
    return other == others.end() ? western : other->second;
}

#endif

QTextCodec* codecOf(int codePage) {
    static const std::map<int, const char*> names = {
        {874, "TIS-620"}, {932, "Shift_JIS"}, {936, "GB18030"}, {949, "EUC-KR"}, {950, "Big5"}};
    const auto name = names.find(codePage);
    return QTextCodec::codecForName(name == names.end() ? "windows-" + QByteArray::number(codePage)
                                                        : QByteArray(name->second));
}

} // namespace

const QTextCodec* olderEncoding(const QLocale& user) {
    const QTextCodec* const own = codecOf(codePage(user));
    return own ? own : codecOf(western);
}

QString olderText(const QByteArray& bytes, const QLocale& user) {
    const QString text = olderEncoding(user)->toUnicode(bytes);
    return text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes) : text;
}
