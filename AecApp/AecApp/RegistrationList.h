#pragma once

#include "AecApp/AecAppApi.h"
#include "AecApp/ScopedRegistration.h"

#include <cstddef>
#include <vector>

namespace aec
{

// The registrations an object made with the host, in the order it made them. Whatever is still
// held when the list is cleared or destroyed is undone last made first, so that a construction or
// an activation that fails part-way takes back exactly what it had made:
//
//     registrations.add(registerCommandHandler(gui, 86, 0, [this] { importTable(); }));
//     registrations.add(registerCommandHandler(gui, 12, 0, [this] { edit(); })); // throws: 86 goes
//
// An owner whose teardown order is fixed releases the entries one by one (release(index)) first.
class AECAPP_API CRegistrationList
{
public:
    CRegistrationList() noexcept;
    // Undoes what is still held, last made first; failures are swallowed.
    ~CRegistrationList();
    CRegistrationList(const CRegistrationList&) = delete;
    CRegistrationList& operator=(const CRegistrationList&) = delete;
    CRegistrationList(CRegistrationList&& other) noexcept;
    // Undoes what this one held first, swallowing failures.
    CRegistrationList& operator=(CRegistrationList&& other) noexcept;

    // Keeps the registration as the next entry. Should keeping it fail, it is undone at once.
    void add(CScopedRegistration registration);
    // Undoes the entry now, numbered from 0 in the order of adding; nothing when it is not held.
    // A failure passes on and the entry stays held.
    void release(std::size_t index);
    // Undoes every held entry, last made first, and forgets them all. Each is tried even when one
    // before it failed; a failed one is tried again as it is forgotten. The first failure then
    // passes on.
    void releaseAll();
    // Forgets every entry, undoing what is held, last made first, swallowing failures.
    void clear() noexcept;
    bool empty() const noexcept { return registrations_.empty(); }

private:
    std::vector<CScopedRegistration> registrations_;
};

} // namespace aec
