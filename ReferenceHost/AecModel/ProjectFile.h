#pragma once

#include "AecModel/AecModelApi.h"

#include <filesystem>
#include <memory>
#include <string_view>

namespace aec::model
{

class CProject;

// Project files: one JSON document with a format name and a version, the entities of each
// collection in order, and the project's preferences.
//
//   {"format": "aec-model-project", "version": 1,
//    "collections": {"sheets": [{"id": "<uuid>", "name": "Sheet A-101", "topic": "<uuid>",
//                                "properties": {"scale": "1:50"}}, ...], ...},
//    "preferences": {...}}
//
// "topic" and "properties" are left out when empty. Loading checks the whole file before it builds
// anything, so a broken file creates no project; broken preferences are not fatal, they are dropped
// with the preferences' warnings.
class AECMODEL_API CProjectFile
{
public:
    static constexpr std::string_view formatName = "aec-model-project";
    static constexpr int version = 1;

    // Throws common::EException naming the file when it cannot be written.
    static void save(const CProject& project, const std::filesystem::path& path);
    // Throws common::EException naming the file and what is wrong with it.
    static std::unique_ptr<CProject> load(const std::filesystem::path& path);
};

} // namespace aec::model
