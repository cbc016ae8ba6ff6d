// Command-line options of one command.
#pragma once

#include <afxwin.h>

#include <utility>
#include <vector>

namespace host {

/// What a command accepts: "--name VALUE", or the flag "--name" when no value is named. A name without
/// leading dashes stands for the one positional argument.
struct OptionRule {
    const wchar_t* name;
    const wchar_t*
        value; ///< name of the value in the usage text; null for a flag. "N" and "SECONDS" are numbers
    bool required;
};

class Options {
public:
    /// Reads the arguments; false, with an explanation in `error`, when they break the rules.
    bool Parse(const std::vector<CString>& arguments, const std::vector<OptionRule>& rules, CString& error);

    bool Has(const wchar_t* name) const;
    /// Empty when the option was not given.
    CString Value(const wchar_t* name) const;
    /// The number of an option whose value is one; `otherwise` when it was not given.
    long Number(const wchar_t* name, long otherwise) const;

private:
    bool ParseOption(const std::vector<CString>& arguments, size_t& next,
                     const std::vector<OptionRule>& rules, CString& error);
    bool ParsePositional(const CString& argument, const std::vector<OptionRule>& rules, CString& error);
    const CString* Find(const wchar_t* name) const;

    std::vector<std::pair<CString, CString>> m_values;
};

/// The rules as they stand in a usage line.
CString UsageOf(const std::vector<OptionRule>& rules);

} // namespace host
