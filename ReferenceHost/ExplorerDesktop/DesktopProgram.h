#pragma once

#include "ExplorerDesktop/DesktopOptions.h"

#include <iosfwd>
#include <optional>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::desktop
{

// explorer-desktop from its options to its exit status: starts the explorer session, opens the
// project (or the sample project), runs the script, then either shows the window until the user
// quits or saves a picture of it and ends. Failures are reported to `errors` with a non-zero
// status; what the script prints goes to `out`.
class CDesktopProgram
{
public:
    CDesktopProgram(DesktopOptions options, std::ostream& out, std::ostream& errors);

    // Needs a QApplication.
    int run();

private:
    // The exit status if the script ended the program (a failed command, or `quit`).
    std::optional<int> runScript(host::CExplorerSession& session);
    int fail(const QString& message) const;

    DesktopOptions options_;
    std::ostream& out_;
    std::ostream& errors_;
};

} // namespace aec::desktop
