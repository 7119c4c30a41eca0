#pragma once

#include <filesystem>

namespace aec::model
{

// The file that the path finally names: a symbolic link, and a link to a link, is followed to the
// end, so that saving replaces the file and the link stays a link. Throws common::EException for a
// link that cannot be read or links that lead round in a circle.
std::filesystem::path finalLinkTarget(std::filesystem::path path);

} // namespace aec::model
