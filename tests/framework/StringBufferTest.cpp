// CString's buffers: who shares, who copies, whose memory is used.
#include <afxdisp.h>
#include <gtest/gtest.h>

namespace {

// A string manager as another module would bring it, which counts its buffers.
class CountingManager final : public ATL::IAtlStringMgr {
public:
    ~CountingManager() = default;
    int Live() const { return m_live; }
    // From now on Allocate and Reallocate find no memory.
    void RunOut() { m_empty = true; }

    ATL::CStringData* Allocate(int nChars, int nCharSize) override {
        if (m_empty) return nullptr;
        auto* data =
            static_cast<ATL::CStringData*>(malloc(sizeof(ATL::CStringData) + (nChars + 1) * nCharSize));
        *data = {this, 0, nChars, 1};
        ++m_live;
        return data;
    }
    // Memory given back is overwritten, and growing always moves, so that a use of old memory shows.
    void Free(ATL::CStringData* data) override {
        --m_live;
        wmemset(static_cast<wchar_t*>(data->data()), L'?', data->nAllocLength);
        free(data);
    }
    ATL::CStringData* Reallocate(ATL::CStringData* data, int nChars, int nCharSize) override {
        ATL::CStringData* grown = Allocate(nChars, nCharSize);
        if (grown == nullptr) return nullptr;
        grown->nDataLength = data->nDataLength;
        memcpy(grown->data(), data->data(), (data->nDataLength + 1) * nCharSize);
        Free(data);
        return grown;
    }
    ATL::CStringData* GetNilString() override {
        m_nil.data.AddRef();
        return &m_nil.data;
    }
    ATL::IAtlStringMgr* Clone() override { return this; }

private:
    struct {
        ATL::CStringData data;
        wchar_t terminator;
    } m_nil = {{this, 0, 0, 2}, 0};
    int m_live = 0;
    bool m_empty = false;
};

} // namespace

TEST(StringBuffer, Copies_ShareUntilOneIsWritten) {
    CString first(L"abc"), second(first);
    EXPECT_EQ(first.GetString(), second.GetString());
    second.SetAt(1, L'X');
    first += L"d";
    EXPECT_STREQ(first, L"abcd");
    EXPECT_STREQ(second, L"aXc");
}

TEST(StringBuffer, Assignment_KeepsTheTargetsManager) {
    CountingManager manager;
    {
        CString foreign(&manager);
        const CString own(L"from this module");
        foreign = own;
        EXPECT_TRUE(foreign.GetManager() == &manager && manager.Live() == 1);
        foreign = CString(L"moved in");
        foreign.Format(L"%d-%s", 7, L"formatted");
        foreign.Replace(L"formatted", L"a longer text than the one before");
        EXPECT_STREQ(foreign, L"7-a longer text than the one before");
        EXPECT_TRUE(foreign.GetManager() == &manager && manager.Live() == 1);

        CString back(L"mine");
        back = foreign;
        EXPECT_TRUE(back.GetManager() == AfxGetStringManager() && manager.Live() == 1);
        EXPECT_EQ(CString(foreign).GetString(), foreign.GetString())
            << "a new string may share foreign memory";
    }
    EXPECT_EQ(manager.Live(), 0);
}

TEST(StringBuffer, SourceInsideTheStringItself) {
    CountingManager manager;
    CString text(L"0123456789", 10, &manager);
    text = text.GetString() + 4;
    EXPECT_STREQ(text, L"456789");
    for (int i = 0; i < 6; ++i)
        text += text;
    EXPECT_EQ(text.GetLength(), 6 * 64);
    EXPECT_EQ(text.Find(L'?'), -1) << "memory given back was read";
    text.SetString(text.GetString() + 1, 2);
    EXPECT_STREQ(text, L"56");
}

TEST(StringBuffer, OutOfMemory_ThrowsAndKeepsTheText) {
    CountingManager manager;
    CString text(L"abc", 3, &manager);
    manager.RunOut();
    EXPECT_THROW(text += L"some more", CMemoryException*);
    EXPECT_STREQ(text, L"abc");
}

TEST(StringBuffer, WrongPositionsAndLengths_Throw) {
    CString text(L"abc");
    EXPECT_EQ(text[3], 0);
    EXPECT_THROW(text[4], COleException*);
    EXPECT_THROW(text.SetAt(3, L'x'), COleException*);
    EXPECT_THROW(text.ReleaseBuffer(1000), COleException*);
    // A buffer filled to the last place without a terminator ends there.
    wchar_t* buffer = text.GetBufferSetLength(7);
    wmemset(buffer, L'x', text.GetAllocLength());
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), text.GetAllocLength());
}
