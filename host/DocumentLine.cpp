// Lines about the documents of a run.
#include <afxwin.h>

#include <algorithm>

#include "host/Commands.h"
#include "host/DocumentLine.h"

namespace host {

namespace {

struct OwnedName {
    CString name;
    size_t document;
};

/// The names of all documents in the order of names, so that equal ones are neighbours.
std::vector<OwnedName> SortedNames(const std::vector<Document>& documents) {
    std::vector<OwnedName> names;
    for (size_t i = 0; i < documents.size(); ++i) {
        for (const CString& name : documents[i].AllNames()) {
            if (!name.IsEmpty()) names.push_back({name, i});
        }
    }
    std::sort(names.begin(), names.end(), [](const OwnedName& a, const OwnedName& b) {
        const int order = CompareFileNames(a.name, b.name);
        return order != 0 ? order < 0 : a.document < b.document;
    });
    return names;
}

} // namespace

std::vector<TextId> RefusalsOf(const std::vector<Document>& documents) {
    std::vector<TextId> refusals;
    for (const Document& document : documents) {
        refusals.push_back(document.Fault());
    }
    const std::vector<OwnedName> names = SortedNames(documents);
    for (size_t i = 1; i < names.size(); ++i) {
        const OwnedName &one = names[i - 1], &other = names[i];
        if (one.document == other.document || CompareFileNames(one.name, other.name) != 0) {
            continue;
        }
        for (size_t document : {one.document, other.document}) {
            if (refusals[document] == TextId::Ready) refusals[document] = TextId::RefusedTwice;
        }
    }
    return refusals;
}

int ExitOfCount(size_t done, size_t all) {
    if (done == 0) return kExitNone;
    return done == all ? kExitDone : kExitSome;
}

} // namespace host
