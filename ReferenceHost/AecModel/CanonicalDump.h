#pragma once

#include <string>

namespace aec::model
{

class CEntityStore;

// The stable text of the store's whole content, one line per entity, collections in explorer order:
//
//   [sheets] 2
//   <id> <type> "<name>" topic=<topic id or -> "<property>"="<value>" ...
//
// Names and property texts are written as JSON strings (UTF-8, escaped), so that every character of
// them shows and no name can pass for a separator.
std::string makeCanonicalDump(const CEntityStore& store);

} // namespace aec::model
