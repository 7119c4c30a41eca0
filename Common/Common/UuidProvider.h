#pragma once

#include "Common/CommonApi.h"
#include "Common/UUID.h"

#include <memory>
#include <string>
#include <vector>

namespace common
{

// Source of the UUIDs that UUID::generate hands out. A host installs one to make new identifiers
// reproducible (tests, scripted runs); without one, fresh random UUIDs are used.
class COMMON_API IUuidProvider
{
public:
    virtual ~IUuidProvider();

    // What a provider makes of the text is its own affair; this system always passes "".
    virtual UUID generate(const std::string& hint) = 0;
};

// The process-wide provider and journal live in libCommon, one copy for every library. They are
// replaced without a lock: install them at start-up, before any entity is created.

// Replaces the installed provider (releasing the previous one); an empty pointer uninstalls.
COMMON_API void installUuidProvider(std::shared_ptr<IUuidProvider> provider);
COMMON_API std::shared_ptr<IUuidProvider> installedUuidProvider();

// While a journal is installed, every UUID that the installed provider returns through
// UUID::generate is appended to it; random UUIDs made without a provider are not recorded.
// An empty pointer uninstalls.
COMMON_API void installUuidJournal(std::shared_ptr<std::vector<UUID>> journal);
COMMON_API std::shared_ptr<std::vector<UUID>> installedUuidJournal();

} // namespace common
