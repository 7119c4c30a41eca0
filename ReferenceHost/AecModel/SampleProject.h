#pragma once

#include "AecModel/AecModelApi.h"

#include <memory>

namespace aec::model
{

class CProject;

// A small but varied project for demonstrations and tests: entities in all ten collections, several
// topics (some named with numbers, in mixed case), entities without a topic, names whose natural
// order differs from their character order ("Sheet A-20" before "Sheet A-101"), a few non-ASCII
// names, and some free-form properties. Identifiers come from common::UUID::generate(), so an
// installed uuid provider makes the project reproducible. It has no undo history.
AECMODEL_API std::unique_ptr<CProject> buildSampleProject();

} // namespace aec::model
