#include "ui/WarningBox.h"

#include "base/Owned.h"
#include "ui/ScaledPixels.h"

namespace varnoke {

namespace {

const int kNarrowestBreak = 280; // pixels at 96 dots per inch: no system breaks a box's lines before that

// The frame and the button take less than a quarter of the screen's height.
int RoomOn(HWND window) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &info);
    return CRect(info.rcWork).Height() * 3 / 4;
}

base::GdiObject<HFONT> BoxFont() {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof(metrics);
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    return base::GdiObject<HFONT>(::CreateFontIndirectW(&metrics.lfMessageFont));
}

int HeightOf(HDC dc, const CString& line) {
    RECT rect = {0, 0, ScaledPixels(dc, kNarrowestBreak), 0};
    return ::DrawTextW(dc, line, line.GetLength(), &rect, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
}

} // namespace

size_t LinesThatFit(const std::vector<CString>& lines, HWND window) {
    const base::GdiObject<HFONT> font = BoxFont();
    const CClientDC dc(nullptr);
    const HGDIOBJ previous = ::SelectObject(dc, font.get());
    int left = RoomOn(window) - HeightOf(dc, L" ");
    size_t count = 0;
    while (count < lines.size() && (left -= HeightOf(dc, lines[count])) >= 0)
        ++count;
    ::SelectObject(dc, previous);
    return count;
}

} // namespace varnoke
