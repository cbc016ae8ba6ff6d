// The report on standard output: a line for each finding.
#pragma once

#include <string>

#include "doctor/Finding.h"

namespace doctor {

struct ReportForm {
    bool json = false;
    bool chinese = false;
};

class Report {
public:
    explicit Report(const ReportForm& form) : m_form(form) {}

    /// Prints the finding. The code must be one of the table.
    void Add(const wchar_t* code, const std::wstring& subject, const std::wstring& detail = std::wstring());

    /// Counts; nothing is printed. A report without faults is a good one.
    int Faults() const { return m_faults; }
    int Warnings() const { return m_warnings; }

    /// The line after all findings; nothing in the machine's form.
    void PrintSummary() const;

private:
    ReportForm m_form;
    int m_faults = 0;
    int m_warnings = 0;
};

/// Writes a line: characters to a console, UTF-8 to a file or pipe.
void PrintLine(const std::wstring& text, bool toErrors = false);

/// Chinese for a Chinese user interface; VARNOKE_LANGUAGE ("zh", "en") overrides it.
bool UseChinese();

/// A system error's own text with its number.
std::wstring ErrorText(unsigned long error);

} // namespace doctor
