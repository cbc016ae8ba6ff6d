// What is measured on a number of documents.
#include <afxwin.h>

#include "bench/Measures.h"
#include "bench/BareParser.h"
#include "bench/DrawingList.h"
#include "bench/LogMeasure.h"
#include "bench/MessageText.h"
#include "bench/Stopwatch.h"

#include <algorithm>

namespace bench {

namespace {

constexpr int kProperties = 10;

struct Records {
    SLoginInfo* login = nullptr;
    SSignType* steps = nullptr;
    SSignType* files = nullptr;

    void Release() {
        Cmn_ReleaseLoginInfo(login);
        Cmn_ReleaseSignType(steps);
        Cmn_ReleaseSignType(files);
    }
};

void Read(CPLMInteract& interact, std::wstring text, std::wstring folder, Records& records, int documents) {
    Require(interact.StartSignForBackSign(&text[0], &folder[0], &records.login, &records.steps,
                                          &records.files) == 1 &&
                records.files->m_lstObj.GetCount() == documents,
            "reading a message");
}

void MeasureReading(const Workspace& workspace, CPLMInteract& interact, int documents, Costs& costs) {
    const std::wstring text = MessageText(L"drawing", documents, kProperties);
    Records records;
    costs[BareReading] = costs[Reading] = 1e9;
    for (int round = 0; round < 3; ++round) { // by turns, so that both meet the same disturbances
        records.Release();
        costs[BareReading] = (std::min)(
            costs[BareReading], Milliseconds([&] { SaveBare(LoadBare(text), workspace.Path(L"bare.xml")); }));
        costs[Reading] =
            (std::min)(costs[Reading],
                       Milliseconds([&] { Read(interact, text, workspace.Path(), records, documents); }));
    }
    costs[Release] = Milliseconds([&] { records.Release(); });
}

void MeasureMerging(const Workspace& workspace, CPLMInteract& interact, int documents, Costs& costs) {
    const std::wstring kept = MessageText(L"kept", documents, kProperties);
    std::wstring added = MessageText(L"added", documents, kProperties);
    std::wstring folder = workspace.Path();
    Records records;
    Read(interact, kept, folder, records, documents);
    records.Release();

    const Document merged = LoadBare(MessageText(L"merged", 2 * documents, kProperties));
    costs[BareMerging] = Milliseconds([&] {
        const Document source = LoadBare(added), target = LoadBare(kept);
        SaveBare(merged, workspace.Path(L"bare.xml"));
    });
    costs[Merging] = Milliseconds([&] {
        Require(interact.AppendParserStartSignXmlString(&added[0], &folder[0], &records.login, &records.steps,
                                                        &records.files) == 1 &&
                    records.files->m_lstObj.GetCount() == documents,
                "merging a message");
    });
    records.Release();
}

double MeasureTagging(const Workspace& workspace, CPLMInteract& interact, int documents) {
    std::wstring folder = workspace.CreateDrawings(documents); // there already after the first time
    const auto list = DrawingList(folder, documents);
    const auto update = [&] {
        Require(interact.UpdateDocsSignTag(list.get(), 1) == 1, "resetting tags");
        Require(interact.UpdateDocsSignTimeTag(list.get()) == 1, "recording times");
    };
    update();
    const double time = Milliseconds(update);
    std::wstring last = Workspace::DrawingName(documents - 1);
    long changed = 0;
    Require(interact.GetDocSignTimeTag(&folder[0], &last[0], &changed) == 0 && changed == 0,
            "the last time tag");
    return time;
}

double MeasureReturning(const Workspace& workspace, CPLMInteract& interact, int documents) {
    Records records;
    Read(interact, MessageText(L"drawing", documents, kProperties), workspace.Path(), records, documents);
    records.Release();
    CStringList names;
    for (int document = 0; document < documents; ++document) {
        names.AddTail(CString(Workspace::DrawingName(document).c_str()));
    }
    wchar_t key[] = L"FNAME";
    std::wstring folder = workspace.Path(), file = workspace.Path(L"return.xml");
    return Milliseconds([&] {
        Require(interact.NotifyPLMSignForBackSignRet(names, key, &folder[0], &file[0]) == 1,
                "writing the return file");
    });
}

} // namespace

Costs MeasureAll(const Workspace& workspace, CPLMInteract& interact, int documents) {
    Costs costs = {};
    MeasureReading(workspace, interact, documents, costs);
    MeasureMerging(workspace, interact, documents, costs);
    costs[Tagging] = MeasureTagging(workspace, interact, documents);
    costs[Returning] = MeasureReturning(workspace, interact, documents);
    MeasureLogging(workspace, interact, documents, costs[BareLogging], costs[Logging]);
    return costs;
}

} // namespace bench
