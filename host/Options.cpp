// Command-line options.
#include <afxwin.h>

#include "host/Options.h"
#include "host/Texts.h"

namespace host {

namespace {

bool IsPositional(const SOptionRule& rule) {
    return rule.m_pszName[0] != L'-';
}

const SOptionRule* FindRule(const std::vector<SOptionRule>& rules, const CString& name) {
    for (const SOptionRule& rule : rules) {
        if (!IsPositional(rule) && name == rule.m_pszName) return &rule;
    }
    return nullptr;
}

} // namespace

bool COptions::Parse(const std::vector<CString>& arguments, const std::vector<SOptionRule>& rules,
                     CString& error) {
    for (size_t next = 0; next < arguments.size(); ++next) {
        const bool option = arguments[next].Left(2) == L"--";
        const bool taken = option ? ParseOption(arguments, next, rules, error)
                                  : ParsePositional(arguments[next], rules, error);
        if (!taken) return false;
    }
    for (const SOptionRule& rule : rules) {
        if (rule.m_bRequired && !Find(rule.m_pszName)) {
            error =
                Text(IsPositional(rule) ? EText::MissingArgument : EText::MissingOption, {rule.m_pszName});
            return false;
        }
    }
    return true;
}

bool COptions::ParseOption(const std::vector<CString>& arguments, size_t& next,
                           const std::vector<SOptionRule>& rules, CString& error) {
    const CString& name = arguments[next];
    const SOptionRule* rule = FindRule(rules, name);
    if (!rule) {
        error = Text(EText::UnknownOption, {name});
        return false;
    }
    if (Find(name)) {
        error = Text(EText::RepeatedOption, {name});
        return false;
    }
    CString value;
    if (rule->m_pszValue) {
        if (next + 1 == arguments.size() || arguments[next + 1].IsEmpty()) {
            error = Text(EText::MissingValue, {name, rule->m_pszValue});
            return false;
        }
        value = arguments[++next];
    }
    m_values.emplace_back(name, value);
    return true;
}

bool COptions::ParsePositional(const CString& argument, const std::vector<SOptionRule>& rules,
                               CString& error) {
    for (const SOptionRule& rule : rules) {
        if (IsPositional(rule) && !Find(rule.m_pszName) && !argument.IsEmpty()) {
            m_values.emplace_back(rule.m_pszName, argument);
            return true;
        }
    }
    error = Text(EText::UnexpectedArgument, {argument});
    return false;
}

const CString* COptions::Find(const wchar_t* name) const {
    for (const auto& value : m_values) {
        if (value.first == name) return &value.second;
    }
    return nullptr;
}

bool COptions::Has(const wchar_t* name) const {
    return Find(name) != nullptr;
}

CString COptions::Value(const wchar_t* name) const {
    const CString* value = Find(name);
    return value ? *value : CString();
}

CString UsageOf(const std::vector<SOptionRule>& rules) {
    CString usage;
    for (const SOptionRule& rule : rules) {
        CString part = rule.m_pszName;
        if (rule.m_pszValue) part = part + L" " + rule.m_pszValue;
        usage += rule.m_bRequired ? L" " + part : L" [" + part + L"]";
    }
    return usage;
}

} // namespace host
