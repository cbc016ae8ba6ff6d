// CList and CStringList.
#include <afxcoll.h>
#include <gtest/gtest.h>
#include <string>

namespace {

typedef CList<int, int> IntList;

// The elements forwards, a bar, and backwards.
std::string Walk(const IntList& list) {
    std::string text;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        text += std::to_string(list.GetNext(position)) + ' ';
    text += '|';
    for (POSITION position = list.GetTailPosition(); position != nullptr;)
        text += ' ' + std::to_string(list.GetPrev(position));
    return text;
}

// Counts its objects; copying can be made to fail.
struct Tracked {
    static int live;
    static bool copyFails;
    Tracked() { ++live; }
    Tracked(const Tracked&) {
        if (copyFails) throw 1;
        ++live;
    }
    ~Tracked() { --live; }
};
int Tracked::live = 0;
bool Tracked::copyFails = false;

} // namespace

TEST(List, InsertsInAllPlaces) {
    IntList list;
    const POSITION two = list.AddTail(2);
    list.AddHead(1);
    const POSITION four = list.AddTail(4);
    list.InsertAfter(two, 3);
    list.InsertBefore(list.GetHeadPosition(), 0);
    list.InsertAfter(four, 5);
    list.InsertBefore(nullptr, -1);
    list.InsertAfter(nullptr, 6);
    EXPECT_EQ(Walk(list), "-1 0 1 2 3 4 5 6 | 6 5 4 3 2 1 0 -1");
    EXPECT_EQ(list.GetCount(), 8);
}

TEST(List, RemovesAnywhereAndReusesNodes) {
    IntList list(2);
    for (int i = 0; i < 7; ++i)
        list.AddTail(i);
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        const POSITION current = position;
        if (list.GetNext(position) % 2 == 0) list.RemoveAt(current);
    }
    EXPECT_EQ(Walk(list), "1 3 5 | 5 3 1");
    EXPECT_EQ(list.RemoveHead(), 1);
    EXPECT_EQ(list.RemoveTail(), 5);
    EXPECT_EQ(list.RemoveTail(), 3);
    EXPECT_EQ(Walk(list), "|");
    POSITION none = nullptr;
    EXPECT_THROW(list.RemoveTail(), CInvalidArgException*);
    EXPECT_THROW(list.GetNext(none), CInvalidArgException*);
    list.AddTail(9);
    EXPECT_EQ(Walk(list), "9 | 9");
}

TEST(List, FindsAndAddsLists) {
    IntList list;
    for (int i : {5, 6, 5})
        list.AddTail(i);
    const POSITION first = list.Find(5);
    EXPECT_EQ(first, list.GetHeadPosition());
    EXPECT_EQ(list.Find(5, first), list.GetTailPosition());
    EXPECT_EQ(list.Find(7), nullptr);
    EXPECT_EQ(list.GetAt(list.FindIndex(1)), 6);
    EXPECT_EQ(list.FindIndex(3), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
    list.SetAt(first, 8);
    list.AddTail(&list);
    list.AddHead(&list);
    EXPECT_EQ(Walk(list), "8 6 5 8 6 5 8 6 5 8 6 5 | 5 6 8 5 6 8 5 6 8 5 6 8");
}

TEST(List, ElementsLiveAsLongAsTheyAreListed) {
    {
        CList<Tracked> list(3);
        for (int i = 0; i < 5; ++i)
            list.AddTail(Tracked());
        EXPECT_EQ(Tracked::live, 5);
        list.RemoveAt(list.FindIndex(2));
        EXPECT_EQ(Tracked::live, 4);
        Tracked::copyFails = true;
        EXPECT_THROW(list.AddTail(list.GetHead()), int);
        Tracked::copyFails = false;
        EXPECT_EQ(list.GetCount(), 4);
        list.RemoveAll();
        EXPECT_EQ(Tracked::live, 0);
        list.AddTail(Tracked());
    }
    EXPECT_EQ(Tracked::live, 0);
}

TEST(StringList, HoldsSharedTextsAndFindsByValue) {
    CStringList list;
    const CString name(L"图纸.dwg");
    list.AddTail(name);
    list.AddTail(L"other");
    EXPECT_EQ(list.GetHead().GetString(), name.GetString());
    EXPECT_EQ(list.Find(L"other"), list.GetTailPosition());
    EXPECT_EQ(list.Find(L"OTHER"), nullptr);
    EXPECT_EQ(list.RemoveHead(), name);
    EXPECT_EQ(list.GetCount(), 1);
}
