#include "module/Failure.h"

#include <afxdisp.h>
#include <comdef.h>

#include <cstdio>
#include <cwchar>
#include <exception>
#include <new>

#include "base/DelayLoad.h"
#include "module/CauseText.h"
#include "module/Trace.h"

namespace varnoke {

namespace {

/// A text of fixed size, so that stating a cause needs no memory; what is too long is cut off.
template <size_t Size>
void Append(wchar_t (&text)[Size], const wchar_t* more) {
    const size_t length = wcslen(text);
    ::lstrcpynW(text + length, more, static_cast<int>(Size - length));
}

struct State {
    int depth; // of operations that call operations
    Cause cause;
    bool kept; // whatever the operation's result
    wchar_t text[500];
};

thread_local State state = {};

/// "（0x80040154 the system's explanation）", or a plain number.
template <size_t Size>
void AppendNumber(wchar_t (&text)[Size], long number) {
    wchar_t shown[16] = {};
    swprintf(shown, 16, number < 0 ? L"（0x%08lX" : L"（%ld", number);
    Append(text, shown);
    wchar_t explanation[200] = {};
    if (number < 0) {
        DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        static_cast<DWORD>(number), 0, explanation, 200, nullptr);
        while (length > 0 && explanation[length - 1] <= L' ')
            explanation[--length] = L'\0';
    }
    if (explanation[0]) Append(text, L" ");
    Append(text, explanation);
    Append(text, L"）");
}

template <size_t Size>
void AppendNarrow(wchar_t (&text)[Size], const char* more) {
    wchar_t wide[128] = {};
    ::MultiByteToWideChar(CP_ACP, 0, more, -1, wide, 127);
    Append(text, wide);
}

void StateCurrentException() {
    wchar_t name[200] = {};
    try {
        throw;
    } catch (CMemoryException* exception) {
        exception->Delete();
        Fail(Cause::OutOfMemory);
    } catch (COleDispatchException* exception) {
        Fail(Cause::ComCallFailed, exception->m_strDescription, exception->m_scError);
        exception->Delete();
    } catch (COleException* exception) {
        Fail(Cause::ComCallFailed, L"", exception->m_sc);
        exception->Delete();
    } catch (CException* exception) {
        AppendNarrow(name, exception->GetRuntimeClass()->m_lpszClassName);
        exception->Delete();
        Fail(Cause::Unexpected, name);
    } catch (const base::MissingImport& missing) {
        AppendNarrow(name, missing.library);
        if (missing.function) Append(name, L" ");
        AppendNarrow(name, missing.function ? missing.function : "");
        Fail(Cause::NeighbourMissing, name, HRESULT_FROM_WIN32(missing.error));
    } catch (const _com_error& error) {
        Fail(Cause::ComCallFailed, static_cast<const wchar_t*>(error.Description()), error.Error());
    } catch (const std::bad_alloc&) {
        Fail(Cause::OutOfMemory);
    } catch (const std::exception& exception) {
        AppendNarrow(name, exception.what());
        Fail(Cause::Unexpected, name);
    }
}

} // namespace

Failed Fail(Cause cause, base::TextRef detail, long number) noexcept {
    wchar_t text[500] = {};
    Append(text, TextOf(cause));
    if (*detail) Append(text, L"：");
    Append(text, detail);
    if (number != 0) AppendNumber(text, number);
    if (state.depth == 0 || state.cause == Cause::None) {
        state.cause = cause;
        ::lstrcpynW(state.text, text, 500);
    }
    if (IsTracing(TraceLevel::Calls)) WriteTrace(text);
    return {};
}

Failed FailWithLastError(Cause cause, base::TextRef detail) noexcept {
    const DWORD error = ::GetLastError();
    return Fail(cause, detail, error == 0 ? 0 : HRESULT_FROM_WIN32(error));
}

void KeepCause() noexcept {
    state.kept = true;
}

bool IsGiven(const wchar_t* text, const wchar_t* name) noexcept {
    if (text && *text) return true;
    return Fail(Cause::ArgumentMissing, name);
}

void StateCaughtException() noexcept {
    try {
        StateCurrentException();
    } catch (...) {
        Fail(Cause::Unexpected);
    }
    if (!IsTracing(TraceLevel::Failures)) return;
    wchar_t line[600] = L"exception: ";
    Append(line, state.text);
    WriteTrace(line);
}

Operation::Operation(const char* name) noexcept : m_name(state.depth == 0 ? name : nullptr) {
    ++state.depth;
    if (!m_name) return;
    state.cause = Cause::None;
    state.kept = false;
    state.text[0] = L'\0';
}

Operation::~Operation() {
    --state.depth;
}

void Operation::End(long result, bool failed) const noexcept {
    if (!m_name) return;
    if (!failed && !state.kept) state.cause = Cause::None;
    const bool hasCause = state.cause != Cause::None;
    if (!IsTracing(hasCause ? TraceLevel::Failures : TraceLevel::Operations)) return;
    wchar_t line[700] = {};
    AppendNarrow(line, m_name);
    wchar_t number[24] = {};
    swprintf(number, 24, L" = %ld", result);
    Append(line, number);
    if (hasCause) {
        swprintf(number, 24, L", cause %ld: ", static_cast<long>(state.cause));
        Append(line, number);
        Append(line, state.text);
    }
    WriteTrace(line);
}

StatedCause LastCause() noexcept {
    return {state.cause, state.cause == Cause::None ? L"" : state.text};
}

} // namespace varnoke
