// CList: nodes in order and reused, elements constructed and destroyed once.
#include <afxtempl.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

typedef CList<int, int> IntList;

// The elements forwards, a bar, and backwards.
std::string Walk(IntList& list) {
    std::string text;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        text += std::to_string(list.GetNext(position)) + ' ';
    text += '|';
    for (POSITION position = list.GetTailPosition(); position != nullptr;)
        text += ' ' + std::to_string(list.GetPrev(position));
    return text;
}

} // namespace

TEST(List, RemovesAnywhereAndReusesNodes) {
    IntList list(2);
    for (int i = 0; i < 7; ++i)
        list.AddTail(i);
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        const POSITION current = position;
        if (list.GetNext(position) % 2 == 0) list.RemoveAt(current);
    }
    EXPECT_EQ(Walk(list), "1 3 5 | 5 3 1");
    EXPECT_TRUE(list.RemoveHead() == 1 && list.RemoveHead() == 3 && list.RemoveHead() == 5);
    EXPECT_EQ(Walk(list), "|");
    POSITION none = nullptr;
    EXPECT_THROW(list.RemoveHead(), CInvalidArgException*);
    EXPECT_THROW(list.GetNext(none), CInvalidArgException*);
    list.AddTail(9);
    EXPECT_EQ(Walk(list), "9 | 9");
}

TEST(List, ElementsLiveAsLongAsTheyAreListed) {
    const auto element = std::make_shared<int>();
    {
        CList<std::shared_ptr<int>> list(3);
        for (int i = 0; i < 5; ++i)
            list.AddTail(element);
        POSITION position = list.GetHeadPosition();
        list.GetNext(position);
        list.RemoveAt(position);
        EXPECT_EQ(element.use_count(), 1 + 4);
        list.RemoveAll();
        EXPECT_EQ(element.use_count(), 1);
        list.AddTail(element);
    }
    EXPECT_EQ(element.use_count(), 1);
}
