// A control that a test dialog names: it answers four members in ways that a test can check.
#pragma once

#include <windows.h>

enum FakeMember { FakeJoin = 1, FakeNumber = 2, FakeFail = 3, FakeName = 4 };

// Controls of this class can be created from construction to destruction.
class FakeControlClass {
public:
    FakeControlClass();
    ~FakeControlClass();

    static long LiveObjects();

private:
    DWORD m_dwCookie = 0;
};
