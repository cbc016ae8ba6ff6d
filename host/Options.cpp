// Command-line options.
#include <afxwin.h>

#include "host/Options.h"
#include "host/Texts.h"

namespace host {

namespace {

bool IsPositional(const OptionRule& rule) {
    return rule.name[0] != L'-';
}

bool IsNumberRule(const OptionRule& rule) {
    return wcscmp(rule.value, L"N") == 0 || wcscmp(rule.value, L"SECONDS") == 0;
}

bool IsNumber(const CString& text) {
    constexpr size_t kMostDigits = 7;
    const size_t digits = wcsspn(text, L"0123456789");
    return digits == static_cast<size_t>(text.GetLength()) && digits <= kMostDigits;
}

const OptionRule* FindRule(const std::vector<OptionRule>& rules, const CString& name) {
    for (const OptionRule& rule : rules) {
        if (!IsPositional(rule) && name == rule.name) return &rule;
    }
    return nullptr;
}

} // namespace

bool Options::Parse(const std::vector<CString>& arguments, const std::vector<OptionRule>& rules,
                    CString& error) {
    for (size_t next = 0; next < arguments.size(); ++next) {
        const bool option = arguments[next].Left(2) == L"--";
        const bool taken = option ? ParseOption(arguments, next, rules, error)
                                  : ParsePositional(arguments[next], rules, error);
        if (!taken) return false;
    }
    for (const OptionRule& rule : rules) {
        if (rule.required && !Find(rule.name)) {
            error = Text(IsPositional(rule) ? TextId::MissingArgument : TextId::MissingOption, {rule.name});
            return false;
        }
    }
    return true;
}

bool Options::ParseOption(const std::vector<CString>& arguments, size_t& next,
                          const std::vector<OptionRule>& rules, CString& error) {
    const int equals = arguments[next].Find(L'=');
    const CString name = equals < 0 ? arguments[next] : arguments[next].Left(equals);
    const OptionRule* rule = FindRule(rules, name);
    if (!rule) {
        error = Text(TextId::UnknownOption, {name});
        return false;
    }
    if (Find(name)) {
        error = Text(TextId::RepeatedOption, {name});
        return false;
    }
    CString value = equals < 0 ? CString() : arguments[next].Mid(equals + 1);
    if (!rule->value) {
        if (equals >= 0) error = Text(TextId::UnexpectedArgument, {arguments[next]});
        m_values.emplace_back(name, value);
        return equals < 0;
    }
    if (equals < 0 && next + 1 < arguments.size()) value = arguments[++next];
    if (value.IsEmpty()) error = Text(TextId::MissingValue, {name, rule->value});
    if (!value.IsEmpty() && IsNumberRule(*rule) && !IsNumber(value))
        error = Text(TextId::NotANumber, {name, value});
    m_values.emplace_back(name, value);
    return error.IsEmpty();
}

bool Options::ParsePositional(const CString& argument, const std::vector<OptionRule>& rules, CString& error) {
    for (const OptionRule& rule : rules) {
        if (IsPositional(rule) && !Find(rule.name) && !argument.IsEmpty()) {
            m_values.emplace_back(rule.name, argument);
            return true;
        }
    }
    error = Text(TextId::UnexpectedArgument, {argument});
    return false;
}

const CString* Options::Find(const wchar_t* name) const {
    for (const auto& value : m_values) {
        if (value.first == name) return &value.second;
    }
    return nullptr;
}

bool Options::Has(const wchar_t* name) const {
    return Find(name) != nullptr;
}

CString Options::Value(const wchar_t* name) const {
    const CString* value = Find(name);
    return value ? *value : CString();
}

long Options::Number(const wchar_t* name, long otherwise) const {
    const CString* value = Find(name);
    return value ? _wtol(*value) : otherwise;
}

CString UsageOf(const std::vector<OptionRule>& rules) {
    CString usage;
    for (const OptionRule& rule : rules) {
        CString part = rule.name;
        if (rule.value) part = part + L" " + rule.value;
        usage += rule.required ? L" " + part : L" [" + part + L"]";
    }
    return usage;
}

} // namespace host
