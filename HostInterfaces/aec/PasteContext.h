#pragma once

#include "aec/EntityCollection.h"

#include <vector>

namespace aec
{

class IProject;

// What clipboard data is decoded against: the target project and the collections it may paste into.
struct PasteContext
{
    const IProject& project;
    std::vector<EntityCollection> collections;
};

} // namespace aec
