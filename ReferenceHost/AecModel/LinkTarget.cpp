#include "AecModel/LinkTarget.h"

#include "Common/Exception.h"

#include <fmt/format.h>
#include <system_error>

namespace aec::model
{

namespace
{

// Linux's own limit of links followed in one path lookup.
constexpr int maximumLinkHops = 40;

} // namespace

std::filesystem::path finalLinkTarget(std::filesystem::path path)
{
    for (int hop = 0; hop < maximumLinkHops; ++hop)
    {
        std::error_code error;
        if (!std::filesystem::is_symlink(std::filesystem::symlink_status(path, error)))
            return path;
        const std::filesystem::path link = std::filesystem::read_symlink(path, error);
        if (error)
            throw common::EException(fmt::format("its link cannot be read ({})", error.message()));
        path = link.is_absolute() ? link : path.parent_path() / link;
    }
    throw common::EException("its links lead round in a circle");
}

} // namespace aec::model
