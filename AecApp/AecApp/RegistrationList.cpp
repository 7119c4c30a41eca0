#include "AecApp/RegistrationList.h"

#include "AecApp/Teardown.h"
#include "Common/Check.h"

#include <utility>

namespace aec
{

CRegistrationList::CRegistrationList() noexcept = default;

CRegistrationList::~CRegistrationList()
{
    clear();
}

CRegistrationList::CRegistrationList(CRegistrationList&& other) noexcept
    : registrations_(std::move(other.registrations_))
{
}

CRegistrationList& CRegistrationList::operator=(CRegistrationList&& other) noexcept
{
    if (this != &other)
    {
        clear();
        registrations_ = std::move(other.registrations_);
    }
    return *this;
}

void CRegistrationList::add(CScopedRegistration registration)
{
    // When the vector cannot grow, `registration` is left as it was and undoes itself on return.
    registrations_.push_back(std::move(registration));
}

void CRegistrationList::release(std::size_t index)
{
    COMMON_PRECONDITION(index < registrations_.size());
    registrations_[index].release();
}

void CRegistrationList::releaseAll()
{
    CTeardown teardown;
    for (auto registration = registrations_.rbegin(); registration != registrations_.rend(); ++registration)
        teardown.run([&registration] { registration->release(); });
    clear();
    teardown.finish();
}

void CRegistrationList::clear() noexcept
{
    // A vector destroys its elements first to last; registrations go the other way.
    while (!registrations_.empty())
        registrations_.pop_back();
}

} // namespace aec
