#include "AecModel/ZipXmlEntry.h"

#include "AecModel/XmlStreamParser.h"
#include "AecModel/ZipArchive.h"

namespace aec::model
{

void parseZipEntry(const CZipArchive& archive, const std::string& entry, CXmlStreamParser& parser,
                   const TableReadProgress& progress)
{
    archive.read(entry,
                 [&](std::string_view chunk, std::size_t done, std::size_t total)
                 {
                     parser.parse(chunk, false);
                     if (parser.stopped())
                         throw CZipArchive::Stop();
                     if (progress && total > 0)
                         progress(static_cast<double>(done) / static_cast<double>(total));
                 });
    parser.parse({}, true);
}

} // namespace aec::model
