// Lines about the documents of a run.
#include <afxwin.h>

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

} // namespace

EText RefusalOf(const std::vector<CDocument>& documents, size_t index) {
    const ENameFault fault = documents[index].NameFault();
    if (fault != ENameFault::None) return TextOfFault(fault);
    for (size_t other = 0; other < documents.size(); ++other) {
        if (other != index && documents[index].SharesName(documents[other])) return EText::RefusedTwice;
    }
    return EText::Ready;
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
