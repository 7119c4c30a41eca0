#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace aec::desktop
{

// The command line of explorer-desktop:
//   explorer-desktop [PROJECT.json] [--seed N] [--script FILE] [--screenshot FILE]
struct DesktopOptions
{
    // Empty for the built-in sample project.
    QString projectPath;
    // Makes identifiers, and so the sample project, reproducible.
    std::optional<std::uint64_t> seed;
    // Shell commands to run before the window shows.
    QString scriptPath;
    // Where to save a picture of the window, after which the program ends.
    QString screenshotPath;
    bool helpRequested = false;

    // Reads the arguments (the program's name first); throws common::EException saying what is
    // wrong with them.
    static DesktopOptions parse(const QStringList& arguments);
    static QString usage();
};

} // namespace aec::desktop
