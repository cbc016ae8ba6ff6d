#include "doctor/Reasons.h"

#include <cwchar>
#include <stdexcept>
#include <string>

#include "doctor/Report.h"

namespace doctor {

namespace {

constexpr Level kOk = Level::Ok, kWarning = Level::Warning, kFault = Level::Fault;

const Reason kReasons[] = {
    {L"file.ok", kOk, L"{0}: {1}", L"", L"{0}：{1}", L""},
    {L"file.missing", kFault, L"{0} was not found",
     L"put it beside Varnoke.dll, or install the product that brings it", L"找不到 {0}",
     L"请将其放在 Varnoke.dll 所在文件夹，或安装提供它的产品"},
    {L"file.damaged", kFault, L"{0} is not a Windows library: {1}",
     L"copy it again from the product that brings it", L"{0} 不是 Windows 库文件：{1}",
     L"请从提供它的产品重新复制"},
    {L"file.wrong-bits", kFault, L"{0} is not for 64-bit Windows: {1}", L"use the 64-bit edition",
     L"{0} 不是 64 位文件：{1}", L"请使用 64 位版本"},
    {L"file.import-missing", kFault, L"{0} needs {1}, which was not found",
     L"install what brings it; vcruntime140.dll and the like come with the Visual C++ 2015-2022 x64 "
     L"redistributable",
     L"{0} 需要 {1}，但找不到该文件",
     L"请安装提供该文件的产品；vcruntime140.dll 等由 Visual C++ 2015-2022 x64 可再发行组件提供"},
    {L"file.function-missing", kFault, L"{0} lacks the function {1}",
     L"use the edition that fits this Varnoke.dll", L"{0} 缺少函数 {1}",
     L"请使用与此 Varnoke.dll 匹配的版本"},
    {L"file.load-failed", kFault, L"{0} can't be loaded: {1}",
     L"install it again; look at its own requirements", L"{0} 无法加载：{1}",
     L"请重新安装，并检查其自身的要求"},
    {L"file.standin", kFault, L"{0} is Varnoke's stand-in, nothing real: {1}",
     L"put the real product's file in its place; a stand-in belongs to tests and demonstrations only",
     L"{0} 是 Varnoke 的替身程序，并非真实产品：{1}", L"请换成真实产品的文件；替身仅用于测试和演示"},
    {L"probe.crashed", kFault, L"{0} crashed or hung while it was tried: {1}",
     L"install it again or ask its maker", L"试用 {0} 时崩溃或无响应：{1}", L"请重新安装或联系其供应商"},
    {L"probe.not-started", kFault, L"{0} can't be tried in a process of its own: {1}",
     L"let varnoke-doctor start processes; look at the security software", L"无法在单独的进程中试用 {0}：{1}",
     L"请允许 varnoke-doctor 启动进程，并检查安全软件"},
    {L"system.xml-missing", kFault, L"the system's XML parser (MSXML 6.0) is not registered",
     L"repair Windows", L"系统的 XML 解析器（MSXML 6.0）未注册", L"请修复 Windows"},

    {L"settings.file", kOk, L"settings file: {0}", L"", L"设置文件：{0}", L""},
    {L"settings.value", kOk, L"  {0} = {1}", L"", L"  {0} = {1}", L""},
    {L"settings.missing", kWarning, L"there is no settings file {0}: every setting has its default",
     L"write one when the defaults don't fit", L"没有设置文件 {0}：所有设置均为默认值",
     L"默认值不适用时请新建"},
    {L"settings.unreadable", kFault, L"the settings file {0} can't be read: {1}",
     L"let the users read it, and make it a plain file", L"无法读取设置文件 {0}：{1}",
     L"请授予用户读取权限，并确认它是普通文件"},
    {L"settings.encoding", kFault, L"the settings file {0} is {1}, which Windows reads wrongly here",
     L"save it as UTF-16 LE with a byte order mark", L"设置文件 {0} 的编码为 {1}，本系统会误读",
     L"请另存为带字节顺序标记的 UTF-16 LE"},
    {L"settings.unknown-section", kFault, L"the settings file has an unknown section [{0}]: {1}",
     L"correct its name, or remove it", L"设置文件中有未知的节 [{0}]：{1}", L"请更正名称或删除"},
    {L"settings.unknown-key", kFault, L"the settings file has an unknown key {0}: {1}",
     L"correct its name, or remove it", L"设置文件中有未知的键 {0}：{1}", L"请更正名称或删除"},
    {L"settings.bad-value", kFault, L"the setting {0} has an unusable value: {1}",
     L"correct it; until then the default takes its place", L"设置 {0} 的值不可用：{1}",
     L"请更正；在此之前使用默认值"},
    {L"settings.read-only", kWarning, L"the settings file {0} can't be written: {1}",
     L"let the users write it, or expect that choices in the dialogs are not kept",
     L"设置文件 {0} 不可写：{1}", L"请授予用户写入权限，否则对话框中的选择不会保存"},

    {L"progid.ok", kOk, L"signing server {0}: {1}", L"", L"签名服务器 {0}：{1}", L""},
    {L"progid.not-registered", kFault, L"the signing server's ProgID {0} is not registered",
     L"install the signing server, or name the right one under [DynDisp] ProgID",
     L"签名服务器的 ProgID {0} 未注册", L"请安装签名服务器，或在 [DynDisp] ProgID 中填写正确的名称"},
    {L"progid.32-bit-only", kFault, L"the signing server {0} is registered for 32-bit programs only: {1}",
     L"register its 64-bit edition with the 64-bit regsvr32", L"签名服务器 {0} 仅为 32 位程序注册：{1}",
     L"请用 64 位 regsvr32 注册其 64 位版本"},
    {L"progid.no-server", kFault, L"the signing server {0} is not registered as an in-process server: {1}",
     L"register its DLL again", L"签名服务器 {0} 未注册为进程内服务器：{1}", L"请重新注册其 DLL"},
    {L"progid.file-missing", kFault, L"the signing server {0} is registered, its file is missing: {1}",
     L"install the signing server again", L"签名服务器 {0} 已注册，但文件不存在：{1}",
     L"请重新安装签名服务器"},
    {L"progid.create-failed", kFault, L"the signing server {0} can't be created: {1}",
     L"install it again; look at its own requirements", L"无法创建签名服务器 {0}：{1}",
     L"请重新安装，并检查其自身的要求"},
    {L"method.ok", kOk, L"method {0}: {1}", L"", L"方法 {0}：{1}", L""},
    {L"method.missing", kFault, L"the signing server has no method {1} (setting [DynDisp] {0})",
     L"correct the name under [DynDisp]", L"签名服务器没有方法 {1}（设置 [DynDisp] {0}）",
     L"请更正 [DynDisp] 中的名称"},
    {L"server.reachable", kOk, L"{0} answers", L"", L"{0} 可以连接", L""},
    {L"server.unknown", kFault, L"{0} can't be found: {1}",
     L"correct [SignServer] ServerIP, or the name service", L"找不到 {0}：{1}",
     L"请更正 [SignServer] ServerIP 或检查名称解析"},
    {L"server.refused", kFault, L"{0} refuses the connection: {1}",
     L"start the signing server's service there, or correct [SignServer] ServerPort", L"{0} 拒绝连接：{1}",
     L"请启动签名服务，或更正 [SignServer] ServerPort"},
    {L"server.timeout", kFault, L"{0} does not answer within {1} s", L"look at the network and the firewalls",
     L"{0} 在 {1} 秒内没有应答", L"请检查网络和防火墙"},

    {L"model.ok", kOk, L"model configuration: {0}", L"", L"模型配置：{0}", L""},
    {L"model.part", kOk, L"  {0}: found", L"", L"  {0}：已找到", L""},
    {L"model.missing", kFault, L"there is no model configuration {0}", L"install it beside QORLocal.dll",
     L"没有模型配置文件 {0}", L"请将其安装在 QORLocal.dll 所在文件夹"},
    {L"model.broken", kFault, L"the model configuration {0} can't be read",
     L"correct it, or install it again", L"模型配置文件 {0} 无法读取", L"请更正或重新安装"},
    {L"model.part-missing", kFault, L"the model configuration {1} has no {0}",
     L"add it, or correct [SignLog] DesignDoMain, LocalObjectConfigId, ServerObjectConfigId",
     L"模型配置文件 {1} 中没有 {0}",
     L"请补充，或更正 [SignLog] 的 DesignDoMain、LocalObjectConfigId、ServerObjectConfigId"},
    {L"model.not-checked", kWarning,
     L"the model configuration {0} was not tried: Varnoke.dll or QORParser.dll is missing",
     L"mend that first", L"未检查模型配置文件 {0}：缺少 Varnoke.dll 或 QORParser.dll", L"请先解决该问题"},

    {L"control.ok", kOk, L"{0}: {1}", L"", L"{0}：{1}", L""},
    {L"control.not-registered", kFault, L"the {0} is not registered: {1}",
     L"register its 64-bit DLL with regsvr32; only interactive signing needs it", L"{0} 未注册：{1}",
     L"请用 regsvr32 注册其 64 位 DLL；仅交互签名需要"},
    {L"control.file-missing", kFault, L"the {0} is registered, its file is missing: {1}", L"install it again",
     L"{0} 已注册，但文件不存在：{1}", L"请重新安装"},

    {L"login.ok", kOk, L"login of {0}", L"", L"{0} 登录成功", L""},
    {L"login.no-session", kFault, L"Durvell.dll knows no logged-in user: {1}",
     L"log in to the PLM client first", L"Durvell.dll 没有已登录的用户：{1}", L"请先登录 PLM 客户端"},
    {L"login.refused", kFault, L"the signing server refuses the login of {0}",
     L"compare user and password; [SignServer] may map the user to another name", L"签名服务器拒绝 {0} 登录",
     L"请核对用户名和密码；[SignServer] 可将用户映射为其他名称"},

    {L"work.ok", kOk, L"documents' folder {0}: can be written", L"", L"文档文件夹 {0}：可写", L""},
    {L"work.missing", kFault, L"the documents' folder {0} does not exist", L"create it, or name another one",
     L"文档文件夹 {0} 不存在", L"请创建，或改用其他文件夹"},
    {L"work.denied", kFault, L"the documents' folder {0} can't be written: {1}", L"let the users write it",
     L"文档文件夹 {0} 不可写：{1}", L"请授予用户写入权限"},
    {L"work.disk-full", kFault, L"there is no room for the documents in {0}: {1}", L"free some space",
     L"{0} 的磁盘空间不足：{1}", L"请释放空间"},
    {L"work.locked", kFault, L"{0} is held by another program: {1}", L"close that program",
     L"{0} 被其他程序占用：{1}", L"请关闭该程序"},
};

} // namespace

const Reason& ReasonFor(const wchar_t* code) {
    for (const Reason& reason : kReasons) {
        if (wcscmp(reason.code, code) == 0) return reason;
    }
    throw std::logic_error("a reason without a row");
}

void PrintReasons(bool chinese) {
    for (const Reason& reason : kReasons) {
        if (reason.level == Level::Ok) continue;
        PrintLine(L"| `" + std::wstring(reason.code) + L"` | " + (chinese ? reason.chinese : reason.english) +
                  L" | " + (chinese ? reason.chineseRemedy : reason.englishRemedy) + L" |");
    }
}

} // namespace doctor
