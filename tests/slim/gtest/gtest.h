// The part of GoogleTest's interface that the tests of the Microsoft-ABI builds use, whose run-time library
// has no streams.
#pragma once

#include <string>
#include <wchar.h>

namespace testing {

class Test {
public:
    virtual ~Test() = default;
    virtual void TestBody() = 0;
};

/// A test that is to be run; each puts itself into the list.
struct Registration {
    Registration(const char* name, Test* (*create)());

    const char* name;
    Test* (*create)();
    Registration* next = nullptr;
};

/// One failed check; what is put into it explains it.
class Failure {
public:
    Failure(const char* file, int line, const char* what);
    Failure(const Failure&) = delete;
    ~Failure();

    Failure& operator<<(const char* text) { return m_text += text, *this; }
    Failure& operator<<(long long number) { return m_text += std::to_string(number), *this; }

private:
    std::string m_text;
};

/// Leaves the function behind a failed check.
struct Leave {
    void operator=(const Failure&) const {}
};

} // namespace testing

#define TEST_F(suite, name)                                                                                  \
    class suite##_##name : public suite {                                                                    \
        void TestBody() override;                                                                            \
        static testing::Test* Create() { return new suite##_##name; }                                        \
        static testing::Registration registration;                                                           \
    };                                                                                                       \
    testing::Registration suite##_##name::registration(#suite "." #name, &Create);                           \
    void suite##_##name::TestBody()
#define TEST(suite, name)                                                                                    \
    using suite = testing::Test;                                                                             \
    TEST_F(suite, name)

#define SLIM_CHECK(condition, what, failed)                                                                  \
    if (condition) {                                                                                         \
    } else                                                                                                   \
        failed testing::Failure(__FILE__, __LINE__, what)

#define EXPECT_TRUE(a) SLIM_CHECK((a), #a, )
#define EXPECT_FALSE(a) SLIM_CHECK(!(a), "not " #a, )
#define EXPECT_EQ(a, b) SLIM_CHECK((a) == (b), #a " == " #b, )
#define EXPECT_GT(a, b) SLIM_CHECK((a) > (b), #a " > " #b, )
#define EXPECT_NEAR(a, b, d) SLIM_CHECK((a) - (b) <= (d) && (b) - (a) <= (d), #a " near " #b, )
#define EXPECT_STREQ(a, b) SLIM_CHECK(wcscmp((a), (b)) == 0, #a " reads " #b, )
#define ASSERT_TRUE(a) SLIM_CHECK((a), #a, return testing::Leave() =)
#define EXPECT_THROW(statement, type)                                                                        \
    try {                                                                                                    \
        statement;                                                                                           \
        testing::Failure(__FILE__, __LINE__, #statement " throws " #type);                                   \
    } catch (type) {                                                                                         \
    }
