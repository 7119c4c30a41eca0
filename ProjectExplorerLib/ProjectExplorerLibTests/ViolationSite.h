#pragma once

#include "CommonTests/ViolationSite.h"

namespace project_explorer::test
{
using common::test::siteFile;
using common::test::violationSite;
} // namespace project_explorer::test
