// COM classes of the files beside this program, without registration.
#pragma once

#include <windows.h>

namespace host {

/// While it lives, the classes that varnoke-standins.manifest beside this program names are found by this
/// thread and by those that it starts. Without that file, or when it can't be used, nothing changes.
class LocalClasses {
public:
    LocalClasses();
    ~LocalClasses();
    LocalClasses& operator=(LocalClasses&&) = delete;

private:
    HANDLE m_context = INVALID_HANDLE_VALUE;
    ULONG_PTR m_cookie = 0;
};

} // namespace host
