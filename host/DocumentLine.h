// Lines about the documents of a run.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/Document.h"
#include "host/Texts.h"

namespace host {

/// For each document why the host refuses it, or Ready. Documents that share a file name are all refused: one
/// would overwrite the other in the work folder, and the result file couldn't tell them apart.
std::vector<TextId> RefusalsOf(const std::vector<Document>& documents);

/// Exit code of a run over so many documents.
int ExitOfCount(size_t done, size_t all);

} // namespace host
