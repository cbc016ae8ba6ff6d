// Command-line options of one command.
#pragma once

#include <afxwin.h>

#include <utility>
#include <vector>

namespace host {

/// What a command accepts: "--name VALUE", or the flag "--name" when no value is named. A name without
/// leading dashes stands for the one positional argument.
struct SOptionRule {
    const wchar_t* m_pszName;
    const wchar_t* m_pszValue; ///< name of the value in the usage text; null for a flag
    bool m_bRequired;
};

class COptions {
public:
    /// Reads the arguments; false, with an explanation in `error`, when they break the rules.
    bool Parse(const std::vector<CString>& arguments, const std::vector<SOptionRule>& rules, CString& error);

    bool Has(const wchar_t* name) const;
    /// Empty when the option was not given.
    CString Value(const wchar_t* name) const;

private:
    bool ParseOption(const std::vector<CString>& arguments, size_t& next,
                     const std::vector<SOptionRule>& rules, CString& error);
    bool ParsePositional(const CString& argument, const std::vector<SOptionRule>& rules, CString& error);
    const CString* Find(const wchar_t* name) const;

    std::vector<std::pair<CString, CString>> m_values;
};

/// The rules as they stand in a usage line.
CString UsageOf(const std::vector<SOptionRule>& rules);

} // namespace host
