// Rendering of dates in a date style.
#include "config/DateStyle.h"

namespace varnoke {

namespace {

struct Token {
    const wchar_t* text;
    int length;
    const wchar_t* format;
    int CalendarDate::*part;
};

// Longer tokens come before those that they begin with.
constexpr Token kTokens[] = {
    {L"YYYY", 4, L"%.4d", &CalendarDate::year}, {L"MM", 2, L"%.2d", &CalendarDate::month},
    {L"M", 1, L"%d", &CalendarDate::month},     {L"DD", 2, L"%.2d", &CalendarDate::day},
    {L"D", 1, L"%d", &CalendarDate::day},
};

const Token* TokenAt(const wchar_t* text) {
    for (const Token& token : kTokens) {
        if (wcsncmp(text, token.text, token.length) == 0) return &token;
    }
    return nullptr;
}

} // namespace

CalendarDate Today() {
    // Not from the run-time library, whose local time follows TZ by a grammar of its own.
    SYSTEMTIME now = {};
    ::GetLocalTime(&now);
    return CalendarDate{now.wYear, now.wMonth, now.wDay};
}

DateStyleFault CheckDateStyle(const CString& style) {
    if (style.IsEmpty()) return DateStyleFault::Empty;
    if (style.Find(L"YYYY") < 0) return DateStyleFault::NoYear;
    if (style.Find(L'M') < 0) return DateStyleFault::NoMonth;
    return style.Find(L'D') < 0 ? DateStyleFault::NoDay : DateStyleFault::None;
}

CString RenderDate(const CString& style, const CalendarDate& date) {
    // One pass suffices: the digits put in for one token can never be part of another.
    CString text;
    for (const wchar_t* rest = style; *rest != L'\0';) {
        if (const Token* token = TokenAt(rest)) {
            text.AppendFormat(token->format, date.*token->part);
            rest += token->length;
        } else {
            text.AppendChar(*rest++);
        }
    }
    return text;
}

} // namespace varnoke
