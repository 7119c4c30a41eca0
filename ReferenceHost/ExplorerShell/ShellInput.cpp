#include "ShellInput.h"

#include "AecModel/WideText.h"
#include "Common/Check.h"
#include "Common/Exception.h"
#include "ShellTerminal.h"

#include <boost/algorithm/string/predicate.hpp>
#include <iostream>
#include <istream>

namespace aec::shell
{

CShellInput::CShellInput(Source source, CShellTerminal* terminal) : source_(source), terminal_(terminal) {}

CShellInput CShellInput::fromScript(const std::string& script)
{
    CShellInput input(Source::Script, nullptr);
    input.script_.open(model::pathFromUtf8(script));
    if (!input.script_)
        throw common::EException("Cannot open the script " + script + ".");
    return input;
}

CShellInput CShellInput::fromStandardInput(CShellTerminal& terminal)
{
    if (!CShellTerminal::isInputInteractive())
        return CShellInput(Source::Stream, nullptr);
    terminal.clearLineOnInterrupt();
    return CShellInput(Source::Terminal, &terminal);
}

bool CShellInput::askAtTerminal(const std::string& question)
{
    COMMON_PRECONDITION(source_ == Source::Terminal);
    const std::optional<std::string> answer = terminal_->readAnswer(question + " [y/N] ");
    return answer && (boost::algorithm::iequals(*answer, "y") || boost::algorithm::iequals(*answer, "yes"));
}

std::optional<std::string> CShellInput::readLine()
{
    if (source_ == Source::Terminal)
        return terminal_->readCommandLine("explorer> ");
    std::istream& in = source_ == Source::Script ? static_cast<std::istream&>(script_) : std::cin;
    std::string line;
    if (!std::getline(in, line))
        return std::nullopt;
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

} // namespace aec::shell
