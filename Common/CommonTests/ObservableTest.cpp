#include "Common/Observable.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace
{

// Logs its name when notified, then runs what the test asked it to do.
struct CObserver
{
    char name;
    std::string& log;
    std::function<void()> onNotified = [] {};
};

class ObservableTest : public ::testing::Test
{
protected:
    void notifyAll()
    {
        observable.notify([](CObserver& observer) {
            observer.log += observer.name;
            observer.onNotified();
        });
    }

    std::string log;
    CObserver a{'a', log};
    CObserver b{'b', log};
    CObserver c{'c', log};
    common::CObservable<CObserver> observable;
};

TEST_F(ObservableTest, RemovedObserversAreNotCalledAgainAndAddedOnesWaitForTheNextNotification)
{
    observable.addObserver(a);
    observable.addObserver(b);
    observable.addObserver(c);
    a.onNotified = [&] { observable.removeObserver(a); };
    b.onNotified = [&] {
        observable.removeObserver(c);
        observable.addObserver(a);
    };
    notifyAll();
    EXPECT_EQ(log, "ab");
    EXPECT_FALSE(observable.hasObserver(c));

    a.onNotified = b.onNotified = [] {};
    notifyAll();
    EXPECT_EQ(log, "abba");
}

TEST_F(ObservableTest, NestedAndFailingNotificationsLeaveTheListWhole)
{
    observable.addObserver(a);
    observable.addObserver(b);
    bool nested = false;
    a.onNotified = [&] {
        if (!std::exchange(nested, true))
        {
            observable.removeObserver(b);
            notifyAll();
        }
    };
    notifyAll();
    EXPECT_EQ(log, "aa");

    observable.addObserver(b);
    observable.addObserver(c);
    b.onNotified = [&] {
        observable.removeObserver(a);
        throw std::runtime_error("observer failed");
    };
    EXPECT_THROW(notifyAll(), std::runtime_error);
    b.onNotified = [] {};
    notifyAll();
    EXPECT_EQ(log, "aaabbc");

    EXPECT_THROW(observable.addObserver(b), common::EPreconditionViolation);
    EXPECT_THROW(observable.removeObserver(a), common::EPreconditionViolation);
}

} // namespace
