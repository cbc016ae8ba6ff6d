// The part of GoogleTest's interface that the tests of the Microsoft-ABI builds use, whose run-time
// library has no streams.
#pragma once

#include <string>
#include <wchar.h>

namespace testing {

class Test {
public:
    virtual ~Test() = default;
    virtual void SetUp() {}
    virtual void TearDown() {}
    virtual void TestBody() = 0;
};

/// A test that is to be run; each puts itself into the list.
struct Registration {
    Registration(const char* name, Test* (*create)());

    const char* name;
    Test* (*create)();
    Registration* next = nullptr;
};

/// Runs the tests whose name holds the text, all for null. The number of those that failed.
int RunTests(const char* part);

/// One failed check; what is put into it explains it.
class Failure {
public:
    Failure(const char* file, int line, const char* what);
    Failure(const Failure&) = delete;
    ~Failure();

    Failure& operator<<(const char* text) { return m_text += text, *this; }
    Failure& operator<<(const std::string& text) { return m_text += text, *this; }
    Failure& operator<<(const wchar_t* text);
    Failure& operator<<(long long number) { return m_text += std::to_string(number), *this; }
    Failure& operator<<(int number) { return m_text += std::to_string(number), *this; }
    Failure& operator<<(size_t number) { return m_text += std::to_string(number), *this; }

private:
    std::string m_text;
};

/// Leaves the function behind a failed check.
struct Leave {
    void operator=(const Failure&) const {}
};

inline bool SameText(const wchar_t* a, const wchar_t* b) {
    return a == nullptr || b == nullptr ? a == b : wcscmp(a, b) == 0;
}

} // namespace testing

#define SLIM_TEST(suite, name, base)                                                                         \
    class suite##_##name : public base {                                                                     \
        void TestBody() override;                                                                            \
        static testing::Test* Create() { return new suite##_##name; }                                        \
        static testing::Registration registration;                                                           \
    };                                                                                                       \
    testing::Registration suite##_##name::registration(#suite "." #name, &Create);                           \
    void suite##_##name::TestBody()

#define TEST(suite, name) SLIM_TEST(suite, name, testing::Test)
#define TEST_F(suite, name) SLIM_TEST(suite, name, suite)

#define SLIM_CHECK(condition, what, failed)                                                                  \
    if (condition) {                                                                                         \
    } else                                                                                                   \
        failed testing::Failure(__FILE__, __LINE__, what)

#define ADD_FAILURE() testing::Failure(__FILE__, __LINE__, "failure")
#define EXPECT_TRUE(a) SLIM_CHECK((a), #a, )
#define EXPECT_FALSE(a) SLIM_CHECK(!(a), "not " #a, )
#define EXPECT_EQ(a, b) SLIM_CHECK((a) == (b), #a " == " #b, )
#define EXPECT_NE(a, b) SLIM_CHECK((a) != (b), #a " != " #b, )
#define EXPECT_GT(a, b) SLIM_CHECK((a) > (b), #a " > " #b, )
#define EXPECT_LT(a, b) SLIM_CHECK((a) < (b), #a " < " #b, )
#define EXPECT_NEAR(a, b, d) SLIM_CHECK((a) - (b) <= (d) && (b) - (a) <= (d), #a " near " #b, )
#define EXPECT_STREQ(a, b) SLIM_CHECK(testing::SameText((a), (b)), #a " reads " #b, )
#define ASSERT_TRUE(a) SLIM_CHECK((a), #a, return testing::Leave() =)
#define ASSERT_EQ(a, b) SLIM_CHECK((a) == (b), #a " == " #b, return testing::Leave() =)
#define EXPECT_THROW(statement, type)                                                                        \
    try {                                                                                                    \
        statement;                                                                                           \
        testing::Failure(__FILE__, __LINE__, #statement " throws " #type);                                   \
    } catch (type) {                                                                                         \
    }
#define EXPECT_NO_THROW(statement)                                                                           \
    try {                                                                                                    \
        statement;                                                                                           \
    } catch (...) {                                                                                          \
        testing::Failure(__FILE__, __LINE__, #statement " throws nothing");                                  \
    }
