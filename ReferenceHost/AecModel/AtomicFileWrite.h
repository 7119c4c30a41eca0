#pragma once

#include "AecModel/AecModelApi.h"

#include <filesystem>
#include <string_view>

namespace aec::model
{

// Replaces the content of a file so that the file is either the old one or the new one, never a
// mix, whatever fails on the way:
//  - a symbolic link is followed, and the file it leads to is replaced, so the link stays a link;
//  - the bytes go to a new file beside that target, are flushed to the disk, and the new file is
//    then renamed over the target;
//  - on POSIX systems the new file gets the target's mode, and its owner and group where the system
//    allows; on Windows it takes its folder's access rules, as the old file did;
//  - a target that is no regular file, or that the user may not write, is refused before anything
//    is written;
//  - any failure (writing, a full disk, flushing, renaming) removes the new file and leaves the
//    target as it was.
// Throws common::EException saying why in words for the user, to be put behind the file's name.
AECMODEL_API void writeFileAtomically(const std::filesystem::path& target, std::string_view bytes);

} // namespace aec::model
