// The COM class of the library, and the functions with which tests look into it.
#include "neighbours/qormodel.h"
#include "standins/common/ClassFactory.h"
#include "standins/common/ComServer.h"
#include "standins/qorparser/DataModel.h"

std::vector<standins::ServedClass> standins::ServedClasses() {
    return {{QORMODEL::CLSID_QORDataModel, L"QORParser.DataModel", L"Object data model", false,
             &standins::MakeFactory<qorparser::DataModel>}};
}

// The number of model objects that exist in this process.
extern "C" __declspec(dllexport) long qor_LiveObjects() {
    return base::g_liveCount;
}

// Makes the n-th model operation from now on fail; 0 for none.
extern "C" __declspec(dllexport) void qor_SetFault(int n) {
    qorparser::PlanFault(n);
}
