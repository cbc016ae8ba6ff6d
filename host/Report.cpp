#include "host/Report.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/Owned.h"
#include "base/Text.h"
#include "host/Console.h"
#include "host/Paths.h"

namespace host {

namespace {

constexpr wchar_t kJson[] = L"--json";
constexpr wchar_t kQuiet[] = L"--quiet";
constexpr wchar_t kLog[] = L"--log";

bool g_json = false;
bool g_quiet = false;
base::FileHandle g_log;
ULONGLONG g_begin = 0; // ms

/// One JSON object; values are texts, or numbers written as such.
class Event {
public:
    explicit Event(const wchar_t* name) { Add(L"event", name); }

    Event& Add(const wchar_t* key, const wchar_t* text) { return AddRaw(key, base::JsonText(text)); }
    Event& Add(const wchar_t* key, size_t number) { return AddRaw(key, std::to_wstring(number)); }
    Event& Add(const Outcome& outcome) {
        if (outcome.cause != 0) Add(L"cause", static_cast<size_t>(outcome.cause)).Add(L"why", outcome.why);
        const CString remedy = Remedy(outcome);
        return remedy.IsEmpty() ? *this : Add(L"remedy", remedy);
    }
    void Print() { PrintLine((m_text + L"}").c_str()); }

private:
    Event& AddRaw(const wchar_t* key, const std::wstring& value) {
        m_text += (m_text.empty() ? L"{" : L",") + base::JsonText(key) + L":" + value;
        return *this;
    }

    std::wstring m_text;
};

void WriteLog(const CString& line) {
    if (!g_log) return;
    SYSTEMTIME now = {};
    ::GetLocalTime(&now);
    CString stamp;
    stamp.Format(L"%04d-%02d-%02d %02d:%02d:%02d ", now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
                 now.wSecond);
    const std::string bytes = base::ToUtf8(stamp + Printable(line) + L"\r\n");
    DWORD written = 0;
    ::WriteFile(g_log.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

enum class Kind { Note, Result, Error };

void TellText(Kind kind, const Outcome& outcome, std::initializer_list<CString> arguments) {
    const CString text = Text(outcome.id, arguments);
    const CString line = Explained(text, outcome);
    WriteLog(line);
    if (g_json) {
        Event(kind == Kind::Error ? L"error" : L"note")
            .Add(L"code", CodeOf(outcome.id))
            .Add(L"text", text)
            .Add(outcome)
            .Print();
    } else if (kind == Kind::Error) {
        PrintError(line);
    } else if (kind == Kind::Result || !g_quiet) {
        PrintLine(line);
    }
}

/// Seconds that the documents to come take at the pace of those before.
size_t SecondsLeft(size_t done, size_t count) {
    return done == 0 ? 0 : static_cast<size_t>((::GetTickCount64() - g_begin) * (count - done) / done / 1000);
}

bool IsDone(const Outcome& outcome) {
    return outcome == TextId::Signed || outcome == TextId::AlreadySigned || outcome == TextId::Ready;
}

int DisplayWidth(const CString& text) {
    int width = 0;
    for (int i = 0; i < text.GetLength(); ++i)
        width += text[i] >= 0x1100 ? 2 : 1;
    return width;
}

} // namespace

std::vector<OptionRule> ReportRules() {
    return {{kJson, nullptr, false}, {kQuiet, nullptr, false}, {kLog, L"FILE", false}};
}

bool BeginReport(const Options& options, const wchar_t* command) {
    g_json = options.Has(kJson);
    g_quiet = options.Has(kQuiet);
    g_begin = ::GetTickCount64();
    if (options.Has(kLog)) {
        const CString path = FullPath(options.Value(kLog));
        g_log = base::OwnFile(::CreateFileW(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                            nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!g_log) {
            TellError(TextId::NoLogFile, {path});
            return false;
        }
    }
    WriteLog(CString(L"varnoke-host ") + command);
    if (g_json) Event(L"begin").Add(L"command", command).Add(L"version", VARNOKE_VERSION).Print();
    return true;
}

int EndReport(int exitCode) {
    if (g_json) Event(L"end").Add(L"exit", static_cast<size_t>(exitCode)).Print();
    return exitCode;
}

void Tell(const Outcome& outcome, std::initializer_list<CString> arguments) {
    TellText(Kind::Note, outcome, arguments);
}

void TellResult(TextId id, std::initializer_list<CString> arguments) {
    TellText(Kind::Result, id, arguments);
}

void TellError(const Outcome& outcome, std::initializer_list<CString> arguments) {
    TellText(Kind::Error, outcome, arguments);
}

void TellDocument(const CString& name, size_t index, size_t count, const Outcome& outcome) {
    const CString shown = name.IsEmpty() ? Text(TextId::Document, {NumberText(index + 1)}) : name;
    const CString line = Explained(shown + L": " + Text(outcome.id), outcome);
    WriteLog(line);
    if (g_json) {
        Event(L"document")
            .Add(L"document", name)
            .Add(L"number", index + 1)
            .Add(L"of", count)
            .Add(L"code", CodeOf(outcome.id))
            .Add(L"text", Text(outcome.id))
            .Add(outcome)
            .Add(L"secondsLeft", SecondsLeft(index + 1, count))
            .Print();
    } else if (!g_quiet || !IsDone(outcome)) {
        PrintLine(line);
    }
}

void TellProgress(size_t done, size_t count) {
    if (g_json || g_quiet || done == count) return;
    const size_t seconds = SecondsLeft(done, count);
    CString left;
    left.Format(L"%u:%02u", static_cast<unsigned>(seconds / 60), static_cast<unsigned>(seconds % 60));
    ShowStatus(Text(done == 0 ? TextId::Progress : TextId::ProgressLeft,
                    {NumberText(done), NumberText(count), left}));
}

void TellTable(const wchar_t* event, const std::vector<Column>& columns,
               const std::vector<std::vector<CString>>& rows) {
    std::vector<std::vector<CString>> lines(1);
    for (const Column& column : columns)
        lines[0].push_back(Text(column.title));
    lines.insert(lines.end(), rows.begin(), rows.end());
    std::vector<int> widths(columns.size());
    for (const std::vector<CString>& line : lines) {
        for (size_t i = 0; i < columns.size(); ++i)
            widths[i] = std::max(widths[i], DisplayWidth(line[i]));
    }
    for (const std::vector<CString>& line : lines) {
        Event row(event);
        CString text;
        for (size_t i = 0; i < columns.size(); ++i) {
            row.Add(columns[i].key, line[i]);
            text += line[i] + CString(L' ', widths[i] - DisplayWidth(line[i]) + 2);
        }
        WriteLog(text.TrimRight());
        if (!g_json) {
            PrintLine(text.TrimRight());
        } else if (&line != &lines.front()) {
            row.Print();
        }
    }
}

} // namespace host
