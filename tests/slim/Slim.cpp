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
bool g_failed = false; // the running test

void Run(const Registration& test) {
    printf("[ RUN      ] %s\n", test.name);
    fflush(stdout);
    g_failed = false;
    try {
        Test* running = test.create();
        running->SetUp();
        running->TestBody();
        running->TearDown();
        delete running;
    } catch (CException* exception) {
        Failure("", 0, exception->GetRuntimeClass()->m_lpszClassName);
        exception->Delete();
    } catch (...) {
        Failure("", 0, "an exception came out of the test");
    }
    if (g_failed) printf("[  FAILED  ] %s\n", test.name);
}

} // namespace

Registration::Registration(const char* name, Test* (*create)()) : name(name), create(create) {
    *g_end = this;
    g_end = &next;
}

Failure::Failure(const char* file, int line, const char* what)
    : m_text(std::string(file) + ":" + std::to_string(line) + ": expected " + what + ". ") {}

Failure::~Failure() {
    g_failed = true;
    printf("%s\n", m_text.c_str());
    fflush(stdout);
}

Failure& Failure::operator<<(const wchar_t* text) {
    while (*text != 0)
        m_text += static_cast<char>(*text < 0x80 ? *text : '?'), ++text;
    return *this;
}

int RunTests(const char* part) {
    int run = 0;
    int failed = 0;
    for (const Registration* test = g_first; test != nullptr; test = test->next) {
        if (part != nullptr && strstr(test->name, part) == nullptr) continue;
        Run(*test);
        ++run;
        failed += g_failed;
    }
    printf("%d tests, %d failed\n", run, failed);
    return run == 0 ? 1 : failed;
}

} // namespace testing

// With an argument, only the tests whose name holds it.
int wmain(int argc, wchar_t** argv) {
    if (FAILED(CoInitialize(nullptr)) ||
        !AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), 0))
        return 2;
    char part[64] = {};
    if (argc > 1) WideCharToMultiByte(CP_UTF8, 0, argv[1], -1, part, sizeof part - 1, nullptr, nullptr);
    const int failed = testing::RunTests(argc > 1 ? part : nullptr);
    CoUninitialize();
    return failed != 0;
}
