// Tests of the records' release through the library.
#include <afxwin.h>
#include <gtest/gtest.h>
#include "varnoke/SignRecords.h"
#include "tests/support/MemoryUse.h"

namespace {

// A text with a buffer of its own, 200 kB: a few left behind show in the process's memory.
CString Big() {
    return CString(L'x', 100000);
}

// Lists of `count` elements, one of which is null.
SSignType* NewType(int count) {
    SSignType* const type = new SSignType;
    type->m_strId = Big();
    for (int object = 0; object < count; ++object) {
        type->m_lstObj.AddTail(object == 1 ? nullptr : new SSignObj);
        for (int property = 0; property < count; ++property)
            type->m_lstObj.GetHead()->AddTail(property == 1 ? nullptr : new SSignPro{Big(), Big()});
    }
    return type;
}

TEST(SignRecords, Release_FreesEveryTextAndElementAndRefusesNull) {
    const auto release = [] {
        SSignInfo* const info = new SSignInfo;
        info->m_strFirstText = info->m_strReserved4 = Big();
        EXPECT_EQ(Cmn_ReleaseSignInfo(info), 1);
        EXPECT_EQ(Cmn_ReleaseLoginInfo(new SLoginInfo{Big(), Big(), Big()}), 1);
        SSignFileDUL* const files = new SSignFileDUL;
        for (SSignFileDULItem* item : {new SSignFileDULItem{Big(), Big(), 0}, {}, new SSignFileDULItem})
            files->m_lstItem.AddTail(item);
        EXPECT_EQ(Cmn_ReleaseSignFileDUL(files) + Cmn_ReleaseSignFileDUL(new SSignFileDUL), 2);
        for (const int count : {0, 1, 3})
            EXPECT_EQ(Cmn_ReleaseSignType(NewType(count)), 1);
    };
    EXPECT_LT(tests::MemoryGrowth(100, release), 10 << 20) << "one text left behind each time makes 20 MB";
    EXPECT_EQ(Cmn_ReleaseLoginInfo(nullptr) + Cmn_ReleaseSignType(nullptr), 0);
    EXPECT_EQ(Cmn_ReleaseSignFileDUL(nullptr) + Cmn_ReleaseSignInfo(nullptr), 0);
}

} // namespace
