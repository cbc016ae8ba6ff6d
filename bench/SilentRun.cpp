#include <afxwin.h>
#include <comdef.h>

#include "bench/SilentRun.h"
#include "base/Dispatch.h"
#include "base/Owned.h"
#include "base/Paths.h"
#include "base/WholeFile.h"
#include "bench/BareParser.h"
#include "bench/DrawingList.h"
#include "bench/MessageText.h"
#include "bench/Stopwatch.h"
#include "varnoke/PLMInteract.h"
#include "varnoke/SignOpt.h"

namespace bench {

namespace {

constexpr int kProperties = 6;

double UserMilliseconds() {
    FILETIME ignored, user;
    ::GetProcessTimes(::GetCurrentProcess(), &ignored, &ignored, &ignored, &user);
    return double(ULONGLONG(user.dwHighDateTime) << 32 | user.dwLowDateTime) / 10000;
}

template <class Work>
Spent SpentOn(Work work) {
    const double before = UserMilliseconds();
    const double wall = Milliseconds(work);
    return {UserMilliseconds() - before, wall};
}

/// What the host would hand in as its open drawing; nothing is called on it.
class OpenDrawing final : public base::DispatchObject<> {
    const base::DispatchTable& Members() const override {
        static const base::DispatchTable none;
        return none;
    }
};

/// In groups, so that the server's folders don't grow with the run: Wine looks through all of a folder for
/// each name that is new in it, and it is not the server that is measured.
std::wstring RemoteName(int number) {
    constexpr int kGroup = 100;
    return std::to_wstring(number / kGroup) + L"\\" + Workspace::DrawingName(number);
}

/// A folder server with drawings, and a work folder.
struct Folders {
    explicit Folders(int documents) {
        for (const wchar_t* folder : {L"vault", L"work", L"vault\\files"})
            ::CreateDirectoryW(workspace.Path(folder).c_str(), nullptr);
        for (int number = 0; number < documents; ++number) {
            const std::wstring path = RemotePath(number);
            ::CreateDirectoryW(base::WithoutBackslash(base::FolderPrefix(path)).c_str(), nullptr);
            Require(base::WriteWholeFile(path, std::string()), "making a drawing");
        }
        ::SetEnvironmentVariableW(L"DURVELL_VAULT", workspace.Path(L"vault").c_str());
    }

    std::wstring RemotePath(int number) const {
        return workspace.Path(L"vault\\files\\" + RemoteName(number));
    }

    const Workspace workspace;
    std::wstring work = workspace.Path(L"work");
};

void CopyBare(int documents) {
    const Folders folders(documents);
    for (int number = 0; number < documents; ++number) {
        const std::wstring name = Workspace::DrawingName(number);
        std::string bytes;
        for (const std::wstring& path : {folders.work + L"\\" + name, folders.RemotePath(number)}) {
            base::ReadWholeFile(folders.RemotePath(number), bytes);
            Require(base::WriteWholeFile(path, bytes), "copying a drawing");
        }
        const base::FileHandle log =
            base::OwnFile(::CreateFileW(folders.workspace.Path(L"bare.log").c_str(), FILE_APPEND_DATA, 0,
                                        nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        DWORD written = 0;
        Require(log && ::WriteFile(log.get(), name.data(), DWORD(name.size() * 2), &written, nullptr) &&
                    ::FlushFileBuffers(log.get()),
                "writing a line");
    }
}

class SilentRun {
public:
    explicit SilentRun(int documents) : m_documents(documents), m_folders(documents) {}

    void Run(bool withLog) {
        std::wstring xml = MessageText(L"drawing", m_documents, kProperties);
        SLoginInfo* login = nullptr;
        SSignType *steps = nullptr, *files = nullptr;
        Require(m_plm.Initialize(nullptr) == 1 && m_signer.Initialize(nullptr) == 1, "starting");
        Require(m_plm.StartSignForBackSign(&xml[0], &m_folders.work[0], &login, &steps, &files) == 1,
                "reading a message");
        wchar_t user[] = L"wang", password[] = L"secret", server[] = L"plm";
        Require(m_signer.Login(user, password, server) != 0, "logging in");
        for (int number = 0; number < m_documents; ++number)
            Process(number, withLog);
        if (withLog) Require(m_plm.WriteSignLogToServer(m_folders.work.c_str()) == 0, "sending the log");
        wchar_t key[] = L"FNAME";
        std::wstring file = m_folders.workspace.Path(L"return.xml");
        Require(m_plm.NotifyPLMSignForBackSignRet(m_signed, key, &m_folders.work[0], &file[0]) == 1,
                "writing the return file");
        Cmn_ReleaseLoginInfo(login);
        Cmn_ReleaseSignType(steps);
        Cmn_ReleaseSignType(files);
    }

private:
    void Process(int number, bool withLog) {
        std::wstring name = Workspace::DrawingName(number);
        varnoke::OwnedRecord<SSignFileDUL> list(new SSignFileDUL);
        list->m_strFolder = m_folders.work.c_str();
        list->m_lstItem.AddTail(new SSignFileDULItem{RemoteName(number).c_str(), name.c_str()});
        Require(m_plm.DownloadDocForBackSign(list.get()) == 1, "downloading");
        Require(m_plm.UpdateDocsSignTag(list.get(), 1) == 1, "resetting tags");
        Sign(name);
        if (withLog) Log(name);
        Require(m_plm.SetDocSignTag(&m_folders.work[0], &name[0], 1) == 1, "tagging");
        if (withLog) Require(m_plm.SetDocSignLogTag(&m_folders.work[0], &name[0], 1) == 1, "tagging");
        Require(m_plm.UploadDocForBackSign(list.get()) == 1, "uploading");
        m_signed.AddTail(name.c_str());
    }

    void Sign(const std::wstring& name) {
        std::wstring path = m_folders.work + L"\\" + name;
        SSignInfo* info = nullptr;
        Require(m_signer.GetSignInfoForBackSign(&path[0], &info) == 1, "sign parameters");
        info->m_strFirstText = name.c_str();
        info->m_strSecondText = path.c_str();
        info->m_strUserName = L"wang";
        info->m_strRole = L"审核";
        Require(m_signer.SignForBackSign(m_drawing, info) != 0, "signing");
        Cmn_ReleaseSignInfo(info);
    }

    void Log(const std::wstring& name) {
        const varnoke::OwnedRecord<SSignObj> object(new SSignObj);
        for (const wchar_t* property : {L"ID", L"DOC_NAME", L"SIGN_USER"})
            object->AddTail(new SSignPro{property, name.c_str()});
        object->AddTail(new SSignPro{L"SIGN_ROLE", L"审核"});
        object->AddTail(new SSignPro{L"SIGN_DATE", L"2015-07-14"});
        Require(m_plm.WriteDelOrSignLogToLocal(object.get(), m_folders.work.c_str(), L"N") == 1, "logging");
    }

    const int m_documents;
    Folders m_folders;
    CPLMInteract m_plm;
    CSignOpt m_signer;
    CStringList m_signed;
    const _com_ptr_t<_com_IIID<IDispatch, &IID_IDispatch>> m_drawing{new OpenDrawing, false};
};

} // namespace

RunCosts MeasureRuns(int documents) {
    RunCosts costs = {};
    costs.bare = SpentOn([&] { CopyBare(documents); });
    const auto run = [documents](bool withLog) {
        SilentRun silent(documents);
        return SpentOn([&] { silent.Run(withLog); });
    };
    costs.silent = run(false);
    costs.logged = run(true);
    return costs;
}

} // namespace bench
