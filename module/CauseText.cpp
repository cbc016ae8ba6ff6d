#include "module/CauseText.h"

namespace varnoke {

namespace {

struct Text {
    Cause cause;
    const wchar_t* text;
};

constexpr Text kTexts[] = {
    {Cause::OutOfMemory, L"内存不足"},
    {Cause::ComCallFailed, L"组件调用失败"},
    {Cause::ArgumentMissing, L"缺少参数"},
    {Cause::NeighbourMissing, L"无法加载所需的库"},
    {Cause::Cancelled, L"用户取消了操作"},
    {Cause::DialogFailed, L"无法显示对话框"},
    {Cause::SettingNotStored, L"无法保存设置"},
    {Cause::ModelConfigMissing, L"找不到模型配置文件"},
    {Cause::ModelConfigUnreadable, L"无法读取模型配置文件"},
    {Cause::ModelConfigNotLoaded, L"模型配置尚未加载"},
    {Cause::ObjectConfigMissing, L"模型配置中没有该对象配置"},
    {Cause::DomainMissing, L"模型配置中没有该设计域"},
    {Cause::ObjectMapMissing, L"模型配置中没有到该服务器对象的映射"},
    {Cause::SigningServerNotRegistered, L"签名服务器未注册"},
    {Cause::SigningServerNotCreated, L"无法创建签名服务器"},
    {Cause::SigningServerNotAutomation, L"签名服务器不支持自动化调用"},
    {Cause::SigningServerNotConnected, L"尚未连接签名服务器"},
    {Cause::MethodMissing, L"签名服务器没有该方法"},
    {Cause::MethodFailed, L"签名服务器的方法调用失败"},
    {Cause::MethodRefused, L"签名服务器拒绝了请求"},
    {Cause::MethodResultUnusable, L"签名服务器返回的不是整数"},
    {Cause::MessageNotWellFormed, L"启动签名消息不是合格的 XML"},
    {Cause::MessageNotKept, L"无法在工作文件夹中保存启动签名消息"},
    {Cause::LoginMissing, L"启动签名消息中没有登录信息"},
    {Cause::LoginIncomplete, L"启动签名消息中的登录信息不完整"},
    {Cause::StepsMissing, L"启动签名消息中没有签名步骤"},
    {Cause::DocumentsMissing, L"启动签名消息中没有文档"},
    {Cause::GroupWithoutId, L"启动签名消息中有一组没有标识"},
    {Cause::ObjectEmpty, L"启动签名消息中有没有属性的对象"},
    {Cause::PropertyIncomplete, L"启动签名消息中有缺少名称或值的属性"},
    {Cause::KeptMessageMissing, L"没有保存的启动签名消息"},
    {Cause::KeptMessageUnreadable, L"无法读取保存的启动签名消息"},
    {Cause::OtherSigner, L"保存的启动签名消息属于另一用户"},
    {Cause::OtherSteps, L"保存的启动签名消息的签名步骤不同"},
    {Cause::NothingNew, L"启动签名消息中没有新文档"},
    {Cause::NoDocumentChosen, L"没有选中文档"},
    {Cause::ListUnusable, L"文档列表为空或没有文件夹"},
    {Cause::DownloadFailed, L"下载失败"},
    {Cause::UploadFailed, L"上传失败"},
    {Cause::TransferSkipped, L"有文件被跳过"},
    {Cause::TransferInterrupted, L"传输中断"},
    {Cause::DrawingNotFound, L"服务器上没有该用户的签名图"},
    {Cause::DocumentMissing, L"文档不存在"},
    {Cause::TagNotWritten, L"无法写入签名标记"},
    {Cause::SignLogBusy, L"签名记录正被其他程序使用"},
    {Cause::SignLogUnreadable, L"无法读取签名记录"},
    {Cause::SignLogNotWritten, L"无法写入签名记录"},
    {Cause::SignLogNotSent, L"签名记录未能发送到服务器"},
    {Cause::DataModelMissing, L"无法创建数据模型"},
    {Cause::ReturnFileNotWritten, L"无法写入返回文件"},
};

} // namespace

const wchar_t* TextOf(Cause cause) {
    for (const Text& entry : kTexts) {
        if (entry.cause == cause) return entry.text;
    }
    return L"未知错误";
}

} // namespace varnoke
