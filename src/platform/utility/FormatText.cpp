#include "platform/utility/FormatText.h"

#include <QtGlobal>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <string>

// The one place that must name its system: ISO C offers only setlocale(), which changes the locale under every thread.
#if defined(__MINGW32__)

namespace {

/// The C locale for the numbers of this thread, while it lives.
class CLocale {
public:
    CLocale() : mode(_configthreadlocale(_ENABLE_PER_THREAD_LOCALE)), before(std::setlocale(LC_NUMERIC, nullptr)) {
        std::setlocale(LC_NUMERIC, "C");
    }
    ~CLocale() {
        std::setlocale(LC_NUMERIC, before.c_str());
        _configthreadlocale(mode);
    }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;

private:
    int mode;
    std::string before;
};

} // namespace

// Microsoft's own writes 1e+020 and 1.#QNAN, and knows no long double.
static int printInCLocale(char* buffer, size_t size, const char* format, va_list arguments) {
    if (std::strcmp(std::setlocale(LC_NUMERIC, nullptr), "C") == 0)
        return __mingw_vsnprintf(buffer, size, format, arguments);
    const CLocale numbers;
    return __mingw_vsnprintf(buffer, size, format, arguments);
}

#elif defined(Q_OS_WIN)

static int printInCLocale(char* buffer, size_t size, const char* format, va_list arguments) {
    static const _locale_t cLocale = _create_locale(LC_ALL, "C");
    if (size == 0)
        return _vscprintf_l(format, cLocale, arguments);
    return _vsnprintf_l(buffer, size, format, cLocale, arguments);
}

#else

static int printInCLocale(char* buffer, size_t size, const char* format, va_list arguments) {
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t current = uselocale(cLocale);
    const int length = std::vsnprintf(buffer, size, format, arguments);
    uselocale(current);
    return length;
}

#endif

static QByteArray formatLongText(const char* format, va_list arguments) {
    va_list measured;
    va_copy(measured, arguments);
    const int length = printInCLocale(nullptr, 0, format, measured);
    va_end(measured);
    if (length <= 0)
        return {};
    QByteArray text(length, Qt::Uninitialized);
    // A QByteArray has room for the terminating NUL behind its size.
    printInCLocale(text.data(), size_t(length) + 1, format, arguments);
    return text;
}

QByteArray formatText(const char* format, va_list arguments) {
    if (!format)
        return {};
    va_list again;
    va_copy(again, arguments);
    // Nearly every text is short, and a long one is printed twice: a conversion of WKT sets 18 numbers.
    char buffer[64];
    const int length = printInCLocale(buffer, sizeof buffer, format, arguments);
    const bool fits = length >= 0 && size_t(length) < sizeof buffer;
    const QByteArray text = fits ? QByteArray(buffer, length) : formatLongText(format, again);
    va_end(again);
    return text;
}
