#pragma once

#include "aec/EntityCollection.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace aec::model
{

class CProject;

// Hands out names that no entity of one collection has yet. Names are compared exactly, as the
// user typed them: "Sheet 1" and "sheet 1" are two names. Every name handed out counts as taken
// from then on, so one generator serves an operation that adds several entities.
class CUniqueNameGenerator
{
public:
    CUniqueNameGenerator(const CProject& project, EntityCollection collection);

    bool isTaken(const std::wstring& name) const;
    // The first free name of "<base> 1", "<base> 2", ...
    std::wstring takeNumbered(std::wstring_view base);
    // The wanted name when it is free; otherwise "<stem> (2)", "<stem> (3)", ..., the first that is
    // free, where the stem is the wanted name without a " (<number>)" it already ends with, so that
    // a copy of "Plan (2)" becomes "Plan (3)" rather than "Plan (2) (2)".
    std::wstring takeUnique(const std::wstring& wanted);

private:
    std::wstring take(std::wstring name);

    std::unordered_set<std::wstring> taken_;
};

} // namespace aec::model
