#pragma once

#include "AecModel/AecModelApi.h"
#include "Common/LogicalCompare.h"
#include "aec/EntityCollection.h"

#include <set>
#include <string>
#include <string_view>

namespace aec::model
{

class CProject;

// Hands out names that no entity of one collection has yet. Names are compared in natural order, as
// the user reads them: "Sheet 1", "sheet 1" and "Sheet 01" are one name. Every name handed out
// counts as taken from then on, so one generator serves an operation that adds several entities.
class AECMODEL_API CUniqueNameGenerator
{
public:
    CUniqueNameGenerator(const CProject& project, EntityCollection collection);

    bool isTaken(std::wstring_view name) const;
    // The name of the entity that has the name already, as that entity spells it, or null.
    const std::wstring* findTaken(std::wstring_view name) const;
    // The first free name of "<base> 1", "<base> 2", ...
    std::wstring takeNumbered(std::wstring_view base);
    // The wanted name when it is free; otherwise "<stem> (2)", "<stem> (3)", ..., the first that is
    // free, where the stem is the wanted name without a " (<number>)" it already ends with, so that
    // a copy of "Plan (2)" becomes "Plan (3)" rather than "Plan (2) (2)".
    std::wstring takeUnique(const std::wstring& wanted);

private:
    std::wstring take(std::wstring name);

    std::set<std::wstring, common::LogicalLess> taken_;
};

} // namespace aec::model
