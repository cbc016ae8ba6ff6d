// The order of the checks decides which message the user sees first.
#include "ui/SignInput.h"

#include "sign/DateStyle.h"
#include "ui/resource.h"

namespace varnoke {

namespace {

UINT FindDateFormatFault(const CString& format) {
    switch (CheckDateStyle(format)) {
    case DateStyleFault::Empty:
        return IDS_NO_DATE_FORMAT;
    case DateStyleFault::NoYear:
        return IDS_DATE_FORMAT_WITHOUT_YEAR;
    case DateStyleFault::NoMonth:
        return IDS_DATE_FORMAT_WITHOUT_MONTH;
    case DateStyleFault::NoDay:
        return IDS_DATE_FORMAT_WITHOUT_DAY;
    case DateStyleFault::None:
        break;
    }
    return 0;
}

} // namespace

UINT FindSignFault(const SSignInput& input) {
    if (input.m_strUserName.IsEmpty()) return IDS_NO_USER_NAME;
    if (input.m_strRole.IsEmpty()) return IDS_NO_ROLE;
    if (input.m_strSealName.IsEmpty()) return IDS_NO_SEAL_NAME;
    if (const UINT fault = FindDateFormatFault(input.m_strDateFormat)) return fault;
    if (input.m_strDateLocation.IsEmpty()) return IDS_NO_DATE_LOCATION;
    if (input.m_strFontSize.IsEmpty()) return IDS_NO_FONT_SIZE;
    if (FontSizeValue(input.m_strFontSize) <= 0) return IDS_FONT_SIZE_NOT_POSITIVE;
    if (!input.m_bColorValid) return IDS_BAD_TEXT_COLOR;
    if (!input.m_bCurrent && !input.m_bOpened && !input.m_bAll) return IDS_NO_SCOPE;
    return 0;
}

int FontSizeValue(const CString& text) {
    // A number that is too large stays the largest one instead of wrapping round to a negative size.
    return static_cast<int>(wcstol(text, nullptr, 10));
}

} // namespace varnoke
