// The host's main window.
#include <afxwin.h>

#include "host/MainWindow.h"
#include "host/Texts.h"

namespace host {

namespace {

constexpr wchar_t kWindowClass[] = L"VarnokeHost";

} // namespace

BEGIN_MESSAGE_MAP(CMainWindow, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CMainWindow::~CMainWindow() {
    if (m_hWnd) DestroyWindow();
}

bool CMainWindow::Create(bool visible) {
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
    return CreateEx(0, kWindowClass, Text(EText::WindowTitle), style, 40, 40, 1100, 800, nullptr, nullptr) !=
           FALSE;
}

void CMainWindow::ShowStep(const CString& text) {
    m_strStep = text;
    Invalidate();
    UpdateWindow();
}

void CMainWindow::OnPaint() {
    CPaintDC context(this);
    CRect client;
    GetClientRect(&client);
    client.DeflateRect(16, 12);
    context.SetBkMode(TRANSPARENT);
    context.DrawText(m_strStep, &client, DT_LEFT | DT_TOP | DT_WORDBREAK | DT_NOPREFIX);
}

} // namespace host
