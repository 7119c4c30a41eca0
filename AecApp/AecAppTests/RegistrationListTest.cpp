#include "AecApp/RegistrationList.h"
#include "AecApp/ScopedRegistration.h"
#include "AecApp/TeardownFailureReport.h"
#include "aec/StatusService.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace aecapp_tests
{
namespace
{

// Registrations whose release is logged by name, and fails as often as asked before it succeeds.
class RegistrationListTest : public ::testing::Test
{
protected:
    aec::CScopedRegistration registration(const std::string& name, int failures = 0)
    {
        return aec::CScopedRegistration::make([] {},
                                              [this, name, failures]() mutable
                                              {
                                                  attempts.push_back(name);
                                                  if (failures-- > 0)
                                                      throw std::runtime_error(name + " is busy");
                                                  released.push_back(name);
                                              });
    }

    std::vector<std::string> attempts;
    std::vector<std::string> released;
};

using Names = std::vector<std::string>;

TEST_F(RegistrationListTest, AHandleReleasesOnceAndTriesTwiceWhenItDies)
{
    {
        aec::CScopedRegistration handle = registration("a");
        handle.release();
        EXPECT_FALSE(handle.isHeld());
        handle.release();
    }
    EXPECT_EQ(released, Names{"a"});

    // A handle moved from holds nothing; one moved onto lets go of its own first.
    {
        aec::CScopedRegistration first = registration("b");
        aec::CScopedRegistration second(std::move(first));
        EXPECT_FALSE(first.isHeld());
        aec::CScopedRegistration& same = second;
        second = std::move(same);
        EXPECT_TRUE(second.isHeld());
        aec::CScopedRegistration third = registration("c");
        third = std::move(second);
        EXPECT_EQ(released, (Names{"a", "c"}));
        EXPECT_FALSE(second.isHeld());
        EXPECT_TRUE(third.isHeld());
    }
    EXPECT_EQ(released, (Names{"a", "c", "b"}));

    // The destructor asks twice: a passing failure is overcome, a lasting one given up.
    attempts.clear();
    registration("once", 1);
    registration("always", 5);
    EXPECT_EQ(attempts, (Names{"once", "once", "always", "always"}));
    EXPECT_EQ(released, (Names{"a", "c", "b", "once"}));
}

TEST_F(RegistrationListTest, AListUndoesLastMadeFirstAndPassesTheFirstFailureOn)
{
    {
        aec::CRegistrationList list;
        list.add(registration("a"));
        list.add(registration("b"));
        aec::CRegistrationList& same = list;
        list = std::move(same);
        aec::CRegistrationList other;
        other.add(registration("c"));
        other.add(registration("d"));
        other = std::move(list);
        EXPECT_EQ(released, (Names{"d", "c"}));
    }
    EXPECT_EQ(released, (Names{"d", "c", "b", "a"}));

    // Every entry is tried, the failing one again as it is forgotten; then the failure passes on.
    released.clear();
    attempts.clear();
    aec::CRegistrationList list;
    list.add(registration("e"));
    list.add(registration("f", 1));
    list.add(registration("g"));
    EXPECT_THROW(list.releaseAll(), std::runtime_error);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(attempts, (Names{"g", "f", "e", "f"}));
    EXPECT_EQ(released, (Names{"g", "e", "f"}));
}

// A status line that keeps what it shows, and fails once asked to.
class RecordingStatus : public aec::IStatusService
{
public:
    void showStatus(const std::wstring& message) override
    {
        if (failing)
            throw std::runtime_error("no status line");
        shown.push_back(message);
    }
    std::vector<std::wstring> shown;
    bool failing = false;
};

TEST_F(RegistrationListTest, ATeardownFailureIsToldOnTheStatusLineInASCII)
{
    RecordingStatus status;
    const auto reportFailure = [&status](aec::IStatusService* service, const char* what)
    {
        try
        {
            throw std::runtime_error(what);
        }
        catch (...)
        {
            aec::reportTeardownFailure(service);
        }
    };
    reportFailure(&status, "panel 40 \x7f\x80\xff gone");
    reportFailure(nullptr, "unseen");
    status.failing = true;
    reportFailure(&status, "unseen");
    EXPECT_EQ(status.shown,
              std::vector<std::wstring>{L"The project explorer could not release its binding with the "
                                        L"application: panel 40 \x7f?? gone."});
}

} // namespace
} // namespace aecapp_tests
