#pragma once

#include "aec/UserInputSource.h"

#include <boost/signals2/connection.hpp>

#include <vector>

namespace aec
{

// Mixin of the objects that take user input: the two user-input signals, and the re-announcing
// of a source's user input as the actor's own.
template <class T>
class CUserInputActor : public T
{
public:
    ~CUserInputActor() override { connections_.clear(); }

    VoidSignal& userInputStartedSignal() override { return userInputStarted_; }
    VoidSignal& userInputFinishedSignal() override { return userInputFinished_; }

    // Announces user input for as long as it lives.
    class [[nodiscard]] CUserInputScope
    {
    public:
        [[nodiscard]] explicit CUserInputScope(CUserInputActor& actor) : actor_(actor)
        {
            actor_.userInputStarted_();
        }
        ~CUserInputScope() { actor_.userInputFinished_(); }
        CUserInputScope(const CUserInputScope&) = delete;
        CUserInputScope& operator=(const CUserInputScope&) = delete;

    private:
        CUserInputActor& actor_;
    };

protected:
    using T::T;

    // Re-announces the source's user input as this actor's.
    void connectUserInputSource(IUserInputSource& source)
    {
        connections_.emplace_back(source.userInputStartedSignal().connect([this] { userInputStarted_(); }));
        connections_.emplace_back(source.userInputFinishedSignal().connect([this] { userInputFinished_(); }));
    }

    // A scope that announces the start of user input now and its end when it is destroyed.
    CUserInputScope createUserInputScope() { return CUserInputScope(*this); }

private:
    VoidSignal userInputStarted_;
    VoidSignal userInputFinished_;
    std::vector<boost::signals2::scoped_connection> connections_;
};

} // namespace aec
