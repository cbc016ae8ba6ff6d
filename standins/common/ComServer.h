// The in-process server functions shared by all COM stand-ins, and the list of classes that each one
// supplies. A DLL lists ComServer.cpp and ComServer.def among its sources and defines ServedClasses().
#pragma once

#include <windows.h>
#include <ole2.h>
#include <vector>

namespace standins {

// OLEMISC flags of a control: shown inside out, activated as soon as it is visible, given its site before its
// state.
constexpr DWORD kControlMiscStatus =
    OLEMISC_RECOMPOSEONRESIZE | OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

// One class of the server and what is registered for it.
struct ServedClass {
    CLSID clsid;
    const wchar_t* progId;
    const wchar_t* description;
    bool isControl;
    HRESULT (*makeFactory)(REFIID iid, void** result);
};

// The DLL's own classes.
std::vector<ServedClass> ServedClasses();

} // namespace standins
