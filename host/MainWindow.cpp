// The host's main window.
#include <afxwin.h>

#include "host/MainWindow.h"
#include "host/Texts.h"

namespace host {

namespace {

constexpr wchar_t kWindowClass[] = L"VarnokeHost";

} // namespace

BEGIN_MESSAGE_MAP(MainWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

MainWindow::~MainWindow() {
    if (m_hWnd) DestroyWindow();
}

bool MainWindow::Create(bool visible) {
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = ::DefWindowProcW;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.hIcon = ::LoadIconW(nullptr, reinterpret_cast<const wchar_t*>(IDI_APPLICATION));
    windowClass.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<const wchar_t*>(IDC_ARROW));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = kWindowClass;
    if (!::RegisterClassExW(&windowClass) && ::GetLastError() != ERROR_CLASS_ALREADY_EXISTS) return false;
    const DWORD style = WS_OVERLAPPEDWINDOW | (visible ? WS_VISIBLE : 0);
    return CreateEx(0, kWindowClass, Text(TextId::WindowTitle), style, 40, 40, 1100, 800, nullptr, nullptr) !=
           FALSE;
}

void MainWindow::ShowStep(const CString& text) {
    m_step = text;
    Invalidate();
    UpdateWindow();
}

void MainWindow::OnPaint() {
    CPaintDC context(this);
    CRect client;
    GetClientRect(&client);
    client.DeflateRect(16, 12);
    context.SetBkMode(TRANSPARENT);
    context.DrawText(m_step, &client, DT_LEFT | DT_TOP | DT_WORDBREAK | DT_NOPREFIX);
}

} // namespace host
