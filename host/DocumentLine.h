// Lines about the documents of a run.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/Document.h"
#include "host/Texts.h"

namespace host {

/// Why the host refuses the document, or Ready. Documents that share a file name are all refused: one would
/// overwrite the other in the work folder, and the result file couldn't tell them apart.
EText RefusalOf(const std::vector<CDocument>& documents, size_t index);

/// Prints the line of one document, by its name, or by its place in the message when it has none.
void PrintDocumentLine(const std::vector<CDocument>& documents, size_t index, EText outcome);

/// Exit code of a run over so many documents.
int ExitOfCount(size_t done, size_t all);

} // namespace host
