#include "doctor/Report.h"

#include <windows.h>

#include <cwchar>

#include "base/Text.h"
#include "doctor/Reasons.h"

namespace doctor {

namespace {

std::wstring Fill(const wchar_t* pattern, const std::wstring& subject, const std::wstring& detail) {
    std::wstring text;
    for (const wchar_t* at = pattern; *at; ++at) {
        const bool place = at[0] == L'{' && (at[1] == L'0' || at[1] == L'1') && at[2] == L'}';
        if (!place) {
            text += *at;
            continue;
        }
        text += at[1] == L'0' ? subject : detail;
        at += 2;
    }
    return text;
}

const wchar_t* LevelName(Level level) {
    switch (level) {
    case Level::Ok:
        return L"ok";
    case Level::Warning:
        return L"warning";
    default:
        return L"fault";
    }
}

} // namespace

void Report::Add(const wchar_t* code, const std::wstring& subject, const std::wstring& detail) {
    const Reason& reason = ReasonFor(code);
    m_faults += reason.level == Level::Fault;
    m_warnings += reason.level == Level::Warning;
    const std::wstring text = Fill(m_form.chinese ? reason.chinese : reason.english, subject, detail);
    const std::wstring remedy =
        Fill(m_form.chinese ? reason.chineseRemedy : reason.englishRemedy, subject, detail);
    if (m_form.json) {
        PrintLine(L"{\"level\":" + base::JsonText(LevelName(reason.level)) + L",\"code\":" +
                  base::JsonText(reason.code) + L",\"subject\":" + base::JsonText(subject) + L",\"detail\":" +
                  base::JsonText(detail) + L",\"text\":" + base::JsonText(text) + L",\"remedy\":" +
                  base::JsonText(remedy) + L"}");
    } else if (reason.level == Level::Ok) {
        PrintLine(L"ok       " + text);
    } else {
        PrintLine((reason.level == Level::Fault ? L"FAULT    " : L"warning  ") + text + L" [" + reason.code +
                  L"] -> " + remedy);
    }
}

void Report::PrintSummary() const {
    if (m_form.json) return;
    const std::wstring faults = std::to_wstring(m_faults), warnings = std::to_wstring(m_warnings);
    PrintLine(m_form.chinese ? L"故障：" + faults + L"，警告：" + warnings
                             : L"faults: " + faults + L", warnings: " + warnings);
}

void PrintLine(const std::wstring& text, bool toErrors) {
    const HANDLE output = ::GetStdHandle(toErrors ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    const std::wstring line = text + L"\r\n";
    DWORD written = 0;
    if (::WriteConsoleW(output, line.c_str(), static_cast<DWORD>(line.size()), &written, nullptr)) return;
    const std::string bytes = base::ToUtf8(line);
    ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

bool UseChinese() {
    wchar_t chosen[8] = {};
    if (::GetEnvironmentVariableW(L"VARNOKE_LANGUAGE", chosen, 8)) return base::SameText(chosen, L"zh");
    return PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_CHINESE;
}

std::wstring ErrorText(unsigned long error) {
    wchar_t text[512] = {};
    DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                    error, 0, text, 512, nullptr);
    while (length > 0 && text[length - 1] <= L' ')
        text[--length] = 0;
    wchar_t number[24] = {};
    swprintf(number, 24, error > 0xFFFF ? L"0x%08lX" : L"%lu", error);
    return std::wstring(text) + (length ? L" (" : L"(") + number + L")";
}

} // namespace doctor
