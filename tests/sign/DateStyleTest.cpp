// Tests of the rendering of dates.
#include <afxwin.h>
#include <gtest/gtest.h>
#include "config/DateStyle.h"
#include "tests/support/TempFolder.h"

namespace {

TEST(DateStyle, Render_ReplacesTokensAndKeepsTheRest) {
    const struct {
        const wchar_t* style;
        varnoke::CalendarDate date;
        const wchar_t* expected;
    } kCases[] = {
        {L"YYYY年-MM月-DD日", {2015, 3, 5}, L"2015年-03月-05日"},
        {L"YYYY.M.D", {2015, 3, 5}, L"2015.3.5"},
        {L"D/M/YYYY", {987, 12, 31}, L"31/12/0987"},
        {L"no token: yyyy", {2015, 3, 5}, L"no token: yyyy"},
        {L"MMM|MMMM|DDD", {2015, 3, 5}, L"033|0303|055"}, // the longest token wins from the left
        {L"YYYYY YYY YYYYYYYYDM", {2015, 3, 5}, L"2015Y YYY 2015201553"},
        {L"100%s %n %YYYY%MM%%DD%", {2015, 3, 5}, L"100%s %n %2015%03%%05%"}, // "%" is nothing special
        {L"YYYY-MM-DD D", {0, 0, 0}, L"0000-00-00 0"},
    };
    for (const auto& c : kCases)
        EXPECT_STREQ(varnoke::RenderDate(c.style, c.date), c.expected) << tests::ToUtf8(c.style);
}

} // namespace
