// CList: nodes in order and reused, elements constructed and destroyed once.
#include <afxtempl.h>
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

TEST(List, RemovesAnywhereAndReusesNodes) {
    IntList list(2);
    for (int i = 1; i < 7; ++i)
        list.AddTail(i);
    list.AddHead(0);
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        const POSITION current = position;
        if (list.GetNext(position) % 2 == 0) list.RemoveAt(current);
    }
    EXPECT_EQ(Walk(list), "1 3 5 | 5 3 1");
    EXPECT_TRUE(list.RemoveHead() == 1 && list.RemoveTail() == 5 && list.RemoveTail() == 3);
    EXPECT_EQ(Walk(list), "|");
    POSITION none = nullptr;
    EXPECT_THROW(list.RemoveTail(), CInvalidArgException*);
    EXPECT_THROW(list.GetNext(none), CInvalidArgException*);
    list.AddTail(9);
    EXPECT_EQ(Walk(list), "9 | 9");
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
