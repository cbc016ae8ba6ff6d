// What SignServer.dll serves.
#include "standins/common/ClassFactory.h"
#include "standins/common/ComServer.h"
#include "standins/signserver/SignServer.h"

std::vector<standins::ServedClass> standins::ServedClasses() {
    // {851F7888-998A-482B-8AFB-92E9867B0372}
    constexpr CLSID signServer = {
        0x851f7888, 0x998a, 0x482b, {0x8a, 0xfb, 0x92, 0xe9, 0x86, 0x7b, 0x03, 0x72}};
    return {{signServer, L"Brevanix.Brevanix0", L"Signing automation server", false,
             &MakeFactory<signserver::SignServer>}};
}
