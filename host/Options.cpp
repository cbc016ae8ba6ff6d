// Command-line options.
#include <afxwin.h>

#include "host/Options.h"
#include "host/Texts.h"

namespace host {

namespace {

bool IsPositional(const OptionRule& rule) {
    return rule.name[0] != L'-';
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
    const CString& name = arguments[next];
    const OptionRule* rule = FindRule(rules, name);
    if (!rule) {
        error = Text(TextId::UnknownOption, {name});
        return false;
    }
    if (Find(name)) {
        error = Text(TextId::RepeatedOption, {name});
        return false;
    }
    CString value;
    if (rule->value) {
        if (next + 1 == arguments.size() || arguments[next + 1].IsEmpty()) {
            error = Text(TextId::MissingValue, {name, rule->value});
            return false;
        }
        value = arguments[++next];
    }
    m_values.emplace_back(name, value);
    return true;
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
