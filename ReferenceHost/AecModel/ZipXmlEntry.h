#pragma once

#include "AecModel/TableReadProgress.h"

#include <string>

namespace aec::model
{

class CXmlStreamParser;
class CZipArchive;

// Streams an XML entry of the archive through the parser, telling the progress through the entry;
// stops reading as soon as the parser has seen what it needs.
void parseZipEntry(const CZipArchive& archive, const std::string& entry, CXmlStreamParser& parser,
                   const TableReadProgress& progress = {});

} // namespace aec::model
