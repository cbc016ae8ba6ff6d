// Queries of the server's objects.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// The server-side name of the user's signature drawing; empty when the user or the drawing is unknown.
CString QueryDrawingName(const CString& userName);

/// The value of the first property of that name in an object XML file; empty on failure. Throws nothing.
CString ReadObjectProperty(const CString& xmlFile, const CString& name);

} // namespace varnoke
