// CString's buffers: who shares, who copies, whose memory is used.
#include <afx.h>
#include <gtest/gtest.h>
#include "tests/framework/CountingManager.h"

using tests::CountingManager;

TEST(StringBuffer, Copies_ShareUntilOneIsWritten) {
    CString first(L"abc");
    CString second(first);
    CString third;
    EXPECT_EQ(third.GetString(), CString(static_cast<const wchar_t*>(nullptr)).GetString());
    third = second;
    EXPECT_TRUE(first.GetString() == second.GetString() && first.GetString() == third.GetString());
    second.SetAt(1, L'X');
    third += L"d";
    EXPECT_STREQ(first, L"abc");
    EXPECT_STREQ(second, L"aXc");
    EXPECT_STREQ(third, L"abcd");
}

TEST(StringBuffer, Assignment_KeepsTheTargetsManager) {
    CountingManager manager;
    {
        CString foreign(&manager);
        const CString own(L"from this module");
        foreign = own;
        EXPECT_NE(foreign.GetString(), own.GetString());
        EXPECT_EQ(foreign.GetManager(), &manager);
        EXPECT_EQ(manager.Live(), 1);

        foreign = CString(L"moved in");
        foreign.Format(L"%d-%s", 7, L"formatted");
        foreign.Replace(L"formatted", L"a longer text than the one before");
        foreign.MakeUpper();
        EXPECT_STREQ(foreign, L"7-A LONGER TEXT THAN THE ONE BEFORE");
        EXPECT_EQ(foreign.GetManager(), &manager);
        EXPECT_EQ(manager.Live(), 1);

        CString back(L"mine");
        back = foreign;
        EXPECT_EQ(back.GetManager(), AfxGetStringManager());
        EXPECT_EQ(manager.Live(), 1);
        EXPECT_EQ(foreign.Left(3).GetManager(), &manager);
        EXPECT_EQ(CString(foreign).GetString(), foreign.GetString())
            << "a new string may share foreign memory";
    }
    EXPECT_EQ(manager.Live(), 0);
}

TEST(StringBuffer, LockedBuffer_IsNotSharedAndStaysInPlace) {
    CString locked(L"abcdef");
    const wchar_t* buffer = locked.LockBuffer();
    const CString copy(locked);
    EXPECT_NE(copy.GetString(), buffer);
    EXPECT_STREQ(copy, L"abcdef");

    locked = CString(L"xyz");
    EXPECT_EQ(locked.GetString(), buffer);
    locked.Empty();
    EXPECT_EQ(locked.GetString(), buffer);
    const CString moved(static_cast<CString&&>(locked));
    EXPECT_EQ(locked.GetString(), buffer);

    locked.UnlockBuffer();
    locked = L"z";
    EXPECT_EQ(CString(locked).GetString(), locked.GetString());
    EXPECT_STREQ(copy, L"abcdef");
}

TEST(StringBuffer, SourceInsideTheStringItself) {
    CountingManager manager;
    CString text(L"0123456789", 10, &manager);
    text = text.GetString() + 4;
    EXPECT_STREQ(text, L"456789");
    for (int i = 0; i < 6; ++i)
        text += text;
    EXPECT_EQ(text.GetLength(), 6 * 64);
    EXPECT_EQ(text.Find(L'?'), -1);
    const CString shared(text);
    text.SetString(text.GetString() + 1, 2);
    EXPECT_STREQ(text, L"56");
    text.Format(L"<%s>", text.GetString());
    EXPECT_STREQ(text, L"<56>");
}

TEST(StringBuffer, OutOfMemory_ThrowsAndKeepsTheText) {
    CountingManager manager;
    CString text(L"abc", 3, &manager);
    manager.RunOut();
    try {
        text += L"some more";
        ADD_FAILURE() << "nothing was thrown";
    } catch (CMemoryException* exception) {
        exception->Delete();
    }
    EXPECT_STREQ(text, L"abc");
}

TEST(StringBuffer, WrongPositionsAndLengths_Throw) {
    CString text(L"abc");
    EXPECT_EQ(text.GetAt(3), 0);
    EXPECT_THROW(text.GetAt(4), CInvalidArgException*);
    EXPECT_THROW(text.SetAt(3, L'x'), CInvalidArgException*);
    EXPECT_THROW(text.ReleaseBuffer(1000), CInvalidArgException*);
    // A buffer filled to the last place without a terminator ends there.
    wmemset(text.GetBufferSetLength(7), L'x', text.GetAllocLength());
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), text.GetAllocLength());
}
