#include "ui/SignInput.h"

#include "config/DateStyle.h"
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

// The order decides which message the user sees first.
UINT FindSignFault(const SignInput& input) {
    if (input.userName.IsEmpty()) return IDS_NO_USER_NAME;
    if (input.role.IsEmpty()) return IDS_NO_ROLE;
    if (input.sealName.IsEmpty()) return IDS_NO_SEAL_NAME;
    if (const UINT fault = FindDateFormatFault(input.dateFormat)) return fault;
    if (input.dateLocation.IsEmpty()) return IDS_NO_DATE_LOCATION;
    if (input.fontSize.IsEmpty()) return IDS_NO_FONT_SIZE;
    if (FontSizeValue(input.fontSize) <= 0) return IDS_FONT_SIZE_NOT_POSITIVE;
    if (!input.colorValid) return IDS_BAD_TEXT_COLOR;
    if (!input.current && !input.opened && !input.all) return IDS_NO_SCOPE;
    return 0;
}

int FontSizeValue(const CString& text) {
    // A number that is too large stays the largest one instead of wrapping round to a negative size.
    return static_cast<int>(wcstol(text, nullptr, 10));
}

} // namespace varnoke
