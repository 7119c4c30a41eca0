#include "Common/Check.h"
#include "Common/Exception.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>

namespace
{

using common::EAssertionViolation;

std::string messageOf(const EAssertionViolation& violation)
{
    return violation.what();
}

TEST(AssertionViolationTest, MessageNamesFileAndLineWhateverTheKind)
{
    EXPECT_EQ(messageOf(common::EPreconditionViolation("Common/UUID", 167)),
              "Assertion violation: Common/UUID(167)");
    EXPECT_EQ(messageOf(common::ECheckViolation("a.cpp", 0)), "Assertion violation: a.cpp(0)");
    EXPECT_EQ(messageOf(common::ENotImplemented("a.cpp", -5)), "Assertion violation: a.cpp(-5)");
    EXPECT_EQ(messageOf(common::EClassInvariantViolation("a.cpp", INT_MIN)),
              "Assertion violation: a.cpp(-2147483648)");
    EXPECT_EQ(messageOf(common::EPostconditionViolation("a.cpp", INT_MAX)),
              "Assertion violation: a.cpp(2147483647)");
}

TEST(AssertionViolationTest, MessageThatDoesNotFitThrowsLengthError)
{
    // Taken by value: a DLL does not export the constant itself, so its address is not to be had.
    constexpr std::size_t capacity = EAssertionViolation::messageCapacity;
    const std::string longestFitting(capacity - 21 - 3, 'f');
    EXPECT_EQ(messageOf(EAssertionViolation(longestFitting.c_str(), 1)).size(), capacity);

    const std::string tooLong = longestFitting + "f";
    try
    {
        EAssertionViolation violation(tooLong.c_str(), 1);
        FAIL() << "a message over the capacity was accepted";
    }
    catch (const std::length_error& error)
    {
        EXPECT_STREQ(error.what(), "count > max_size() - size()");
    }
}

template <class Violation>
void expectCaughtAsRootOnly()
{
    bool caughtAsRoot = false;
    try
    {
        try
        {
            throw Violation("x.cpp", 1);
        }
        catch (const std::exception&)
        {
            ADD_FAILURE() << "a contract violation was caught as std::exception";
        }
    }
    catch (const EAssertionViolation& violation)
    {
        caughtAsRoot = std::string(violation.what()) == "Assertion violation: x.cpp(1)";
    }
    EXPECT_TRUE(caughtAsRoot);
}

TEST(AssertionViolationTest, EveryKindIsCaughtByTheRootAndNoneByStdException)
{
    expectCaughtAsRootOnly<common::EPreconditionViolation>();
    expectCaughtAsRootOnly<common::EPostconditionViolation>();
    expectCaughtAsRootOnly<common::EClassInvariantViolation>();
    expectCaughtAsRootOnly<common::ECheckViolation>();
    expectCaughtAsRootOnly<common::ENotImplemented>();
}

int checkedHalf(int value)
{
    COMMON_PRECONDITION(value % 2 == 0);
    COMMON_CHECK(value >= 0);
    return value / 2;
}

TEST(AssertionViolationTest, CheckMacrosThrowTheirKindFromTheirOwnSite)
{
    EXPECT_EQ(checkedHalf(4), 2);
    std::string preconditionSite;
    std::string checkSite;
    try
    {
        checkedHalf(3);
    }
    catch (const common::EPreconditionViolation& violation)
    {
        preconditionSite = violation.what();
    }
    try
    {
        checkedHalf(-2);
    }
    catch (const common::ECheckViolation& violation)
    {
        checkSite = violation.what();
    }
    const std::string prefix = "Assertion violation: Common/CommonTests/AssertionViolationTest.cpp(";
    EXPECT_EQ(preconditionSite.rfind(prefix, 0), 0u) << preconditionSite;
    EXPECT_EQ(checkSite.rfind(prefix, 0), 0u) << checkSite;
    EXPECT_NE(preconditionSite, checkSite);
    EXPECT_THROW(COMMON_NOT_IMPLEMENTED(), common::ENotImplemented);
}

TEST(AssertionViolationTest, RunTimeErrorsAreStdExceptions)
{
    try
    {
        throw common::EException("The table file could not be read");
    }
    catch (const std::exception& error)
    {
        EXPECT_STREQ(error.what(), "The table file could not be read");
    }
}

} // namespace
