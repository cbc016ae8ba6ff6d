// Runs the tests of a Microsoft-ABI program; see gtest/gtest.h.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <objbase.h>
#include <stdio.h>
#include <stdlib.h>

namespace std {
// An empty std::function was called.
void __throw_bad_function_call() {
    abort();
}
} // namespace std

// A program's dialogs need its application object. It tells nobody of exceptions: MFC's own would wait
// for somebody to close a box.
class CQuietApp : public CWinApp {
public:
    LRESULT ProcessWndProcException(CException*, const MSG*) override { return 0; }
    int DoMessageBox(LPCTSTR, UINT, UINT) override { return IDOK; }
};

CQuietApp theApp;

namespace testing {

namespace {

Registration* g_first = nullptr;
Registration** g_end = &g_first;
int g_failures = 0;

} // namespace

Registration::Registration(const char* name, Test* (*create)()) : name(name), create(create) {
    *g_end = this;
    g_end = &next;
}

Failure::Failure(const char* file, int line, const char* what)
    : m_text(std::string(file) + ":" + std::to_string(line) + ": expected " + what + ". ") {}

Failure::~Failure() {
    ++g_failures;
    printf("%s\n", m_text.c_str());
    fflush(stdout);
}

} // namespace testing

// An exception that comes out of a test ends the program.
int wmain() {
    if (FAILED(CoInitialize(nullptr)) ||
        !AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), 0))
        return 2;
    for (const testing::Registration* test = testing::g_first; test; test = test->next) {
        printf("%s\n", test->name);
        fflush(stdout);
        testing::Test* running = test->create();
        running->TestBody();
        delete running;
    }
    CoUninitialize();
    printf("%d checks failed\n", testing::g_failures);
    return testing::g_failures != 0;
}
