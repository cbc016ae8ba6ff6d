// What the program tells of its work: lines on the console, the same lines in a log file, or a JSON object a
// line for other programs.
#pragma once

#include <afxwin.h>

#include <initializer_list>
#include <vector>

#include "host/Options.h"
#include "host/Outcome.h"

namespace host {

/// Options that every command takes.
std::vector<OptionRule> ReportRules();

/// From here on everything is told as the options ask for it. False, after an error line, when the log file
/// can't be written.
bool BeginReport(const Options& options, const wchar_t* command);
/// Ends the report; gives the exit code back.
int EndReport(int exitCode);

/// Left out with --quiet.
void Tell(const Outcome& outcome, std::initializer_list<CString> arguments = {});
/// What the command was for.
void TellResult(TextId id, std::initializer_list<CString> arguments = {});
void TellError(const Outcome& outcome, std::initializer_list<CString> arguments = {});

/// The line of the index-th of so many documents, by its name or, where that is empty, by its place.
void TellDocument(const CString& name, size_t index, size_t count, const Outcome& outcome);
/// On a console: how many documents are done and how long the others may take. The next line replaces it.
void TellProgress(size_t done, size_t count);

struct Column {
    const wchar_t* key; ///< of the JSON object
    TextId title;
};
/// Rows in columns of equal display width, a Chinese character taking two places.
void TellTable(const wchar_t* event, const std::vector<Column>& columns,
               const std::vector<std::vector<CString>>& rows);

} // namespace host
