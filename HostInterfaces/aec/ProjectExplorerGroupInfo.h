#pragma once

#include "aec/EntityCollection.h"

#include "Common/UUID.h"

#include <string>
#include <vector>

namespace aec
{

// One of the explorer's fixed top-level groups as the host defines it.
struct ProjectExplorerGroupInfo
{
    common::UUID id;             // the group's (and its entity kind's) identifier
    std::wstring name;           // display name
    EntityCollection collection; // where the group's entities live
    bool groupable;              // offers the shared grouping property
    int kindNumber;              // the host's kind number of the group's identifier
};

// The ten groups in tree order: seven groupable ones (kind numbers 3 to 9) then three without
// grouping. Made once on first use.
inline const std::vector<ProjectExplorerGroupInfo>& projectExplorerGroups()
{
    static const std::vector<ProjectExplorerGroupInfo> groups = [] {
        const auto id = [](const char* text) { return common::UUID::parse(std::string_view(text)); };
        return std::vector<ProjectExplorerGroupInfo>{
            {id("eef589c2-c45e-4286-9e5d-b6fb8ef22fbf"), L"Sheets", EntityCollection::Sheets, true, 3},
            {id("08bd6b6b-f6f9-4aa5-983b-7645193a59a2"), L"Tables", EntityCollection::Tables, true, 4},
            {id("0420e128-fc7c-4304-9bf4-7163771b515f"), L"Assemblies", EntityCollection::Assemblies, true, 5},
            {id("2ec2e31f-9c47-46f3-837d-c53218c8ab5c"), L"Materials", EntityCollection::Materials, true, 6},
            {id("8a49bd12-7d1d-4729-b7fd-8af6dd7a00ac"), L"Door styles", EntityCollection::DoorStyles, true, 7},
            {id("dd69e5d4-a702-4a02-bfbf-ff3dd9e77810"), L"Window styles", EntityCollection::WindowStyles, true,
             8},
            {id("6f8a63ef-dee5-4b54-a80b-4265ca5d7fbb"), L"Reinforcement styles",
             EntityCollection::ReinforcementStyles, true, 9},
            {id("99817391-e81d-43e1-98bd-b958c958a47f"), L"Topics", EntityCollection::Topics, false, 10},
            {id("c112227f-b6ff-459b-b7de-306b9f3145e5"), L"Linked models", EntityCollection::LinkedModels, false,
             11},
            {id("74fd5db8-df7b-4421-8085-75e332d778a8"), L"Images", EntityCollection::Images, false, 12},
        };
    }();
    return groups;
}

} // namespace aec
