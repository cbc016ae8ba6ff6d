// Lines about the documents of a run.
#include <afxwin.h>

#include <algorithm>

#include "host/Command.h"
#include "host/Console.h"
#include "host/DocumentLine.h"

namespace host {

namespace {

EText TextOfFault(ENameFault fault) {
    switch (fault) {
    case ENameFault::Empty:
        return EText::RefusedEmpty;
    case ENameFault::Path:
        return EText::RefusedPath;
    case ENameFault::Device:
        return EText::RefusedDevice;
    case ENameFault::Ending:
        return EText::RefusedEnding;
    case ENameFault::Character:
        return EText::RefusedCharacter;
    case ENameFault::SignData:
        return EText::RefusedSignData;
    case ENameFault::None:
        break;
    }
    return EText::Ready;
}

struct SOwnedName {
    CString m_strName;
    size_t m_nDocument;
};

/// The names of all documents in the order of names, so that equal ones are neighbours.
std::vector<SOwnedName> SortedNames(const std::vector<CDocument>& documents) {
    std::vector<SOwnedName> names;
    for (size_t i = 0; i < documents.size(); ++i) {
        for (const CString& name : documents[i].AllNames()) {
            if (!name.IsEmpty()) names.push_back({name, i});
        }
    }
    std::sort(names.begin(), names.end(), [](const SOwnedName& a, const SOwnedName& b) {
        const int order = CompareFileNames(a.m_strName, b.m_strName);
        return order != 0 ? order < 0 : a.m_nDocument < b.m_nDocument;
    });
    return names;
}

} // namespace

std::vector<EText> RefusalsOf(const std::vector<CDocument>& documents) {
    std::vector<EText> refusals;
    for (const CDocument& document : documents) {
        refusals.push_back(TextOfFault(document.NameFault()));
    }
    const std::vector<SOwnedName> names = SortedNames(documents);
    for (size_t i = 1; i < names.size(); ++i) {
        const SOwnedName &one = names[i - 1], &other = names[i];
        if (one.m_nDocument == other.m_nDocument || CompareFileNames(one.m_strName, other.m_strName) != 0) {
            continue;
        }
        for (size_t document : {one.m_nDocument, other.m_nDocument}) {
            if (refusals[document] == EText::Ready) refusals[document] = EText::RefusedTwice;
        }
    }
    return refusals;
}

void PrintDocumentLine(const std::vector<CDocument>& documents, size_t index, EText outcome) {
    CString name = documents[index].Name();
    if (name.IsEmpty()) name = Text(EText::Document, {NumberText(index + 1)});
    PrintLine(name + L": " + Text(outcome));
}

int ExitOfCount(size_t done, size_t all) {
    if (done == 0) return exitNone;
    return done == all ? exitDone : exitSome;
}

} // namespace host
