#include "Common/UuidProvider.h"

#include <utility>

namespace common
{
namespace
{

std::shared_ptr<IUuidProvider>& providerSlot()
{
    static std::shared_ptr<IUuidProvider> provider;
    return provider;
}

std::shared_ptr<std::vector<UUID>>& journalSlot()
{
    static std::shared_ptr<std::vector<UUID>> journal;
    return journal;
}

} // namespace

IUuidProvider::~IUuidProvider() = default;

void installUuidProvider(std::shared_ptr<IUuidProvider> provider)
{
    providerSlot() = std::move(provider);
}

std::shared_ptr<IUuidProvider> installedUuidProvider()
{
    return providerSlot();
}

void installUuidJournal(std::shared_ptr<std::vector<UUID>> journal)
{
    journalSlot() = std::move(journal);
}

std::shared_ptr<std::vector<UUID>> installedUuidJournal()
{
    return journalSlot();
}

} // namespace common
