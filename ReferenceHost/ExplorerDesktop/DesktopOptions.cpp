#include "ExplorerDesktop/DesktopOptions.h"

#include "Common/Exception.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace aec::desktop
{

namespace
{

struct Parser
{
    QCommandLineParser parser;
    QCommandLineOption seed{"seed", "Makes identifiers reproducible from the seed N.", "N"};
    QCommandLineOption script{"script", "Runs the shell commands of FILE before the window shows.", "FILE"};
    QCommandLineOption screenshot{"screenshot", "Saves the window as a PNG picture to FILE and ends.",
                                  "FILE"};
    QCommandLineOption help{{"h", "help"}, "Shows this help."};

    Parser()
    {
        parser.setApplicationDescription("The project explorer in a desktop window.");
        parser.addPositionalArgument("PROJECT.json", "The project to open; the sample project without one.",
                                     "[PROJECT.json]");
        parser.addOptions({seed, script, screenshot, help});
    }
};

std::uint64_t parseSeed(const QString& text)
{
    bool ok = false;
    const qulonglong seed = text.toULongLong(&ok);
    if (!ok)
        throw common::EException(
            QString("--seed takes a whole number from 0 on, not \"%1\".").arg(text).toStdString());
    return seed;
}

} // namespace

DesktopOptions DesktopOptions::parse(const QStringList& arguments)
{
    Parser parser;
    if (!parser.parser.parse(arguments))
        throw common::EException(parser.parser.errorText().toStdString());
    DesktopOptions options;
    options.helpRequested = parser.parser.isSet(parser.help);
    const QStringList positional = parser.parser.positionalArguments();
    if (positional.size() > 1)
        throw common::EException(QString("Give at most one project file, not %1: %2")
                                     .arg(positional.size())
                                     .arg(positional.join(' '))
                                     .toStdString());
    if (!positional.empty())
        options.projectPath = positional.front();
    if (parser.parser.isSet(parser.seed))
        options.seed = parseSeed(parser.parser.value(parser.seed));
    options.scriptPath = parser.parser.value(parser.script);
    options.screenshotPath = parser.parser.value(parser.screenshot);
    return options;
}

QString DesktopOptions::usage()
{
    return Parser().parser.helpText();
}

} // namespace aec::desktop
