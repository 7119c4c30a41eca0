#include "ExplorerShell/TopicCommands.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "ExplorerShell/ExplorerLookup.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/TopicEditor.h"
#include "HostServices/HostServices.h"
#include "aec/Transaction.h"
#include "aec/TransactionHost.h"

#include <fmt/format.h>
#include <ostream>

namespace aec::shell
{

namespace
{

constexpr const char* usage = "Usage: topics [new NAME | rename NAME NEWNAME | delete NAME | clear]";

} // namespace

CTopicCommands::CTopicCommands(host::CExplorerSession& session, CCommandTable& table) : CCommandSet(session)
{
    table.add({"topics", "[new NAME|rename NAME NEWNAME|delete NAME|clear]",
               "list the topics, make, rename or delete one, or clear the selection's topic", 0, 3, true,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   run(line, out);
               }});
}

void CTopicCommands::run(const CCommandLine& line, std::ostream& out)
{
    const std::size_t count = line.getArgumentCount();
    if (count == 0)
        return list(out);
    const std::string& verb = line.getArgument(0).text;
    host::CTopicEditor topics(session_.getProject());
    if (verb == "new" && count == 2)
    {
        const TopicId topic = topics.create(model::fromUtf8(line.getArgument(1).text));
        out << "created: topic " << CExplorerLookup(session_).quotedName(EntityId(topic.uuid())) << '\n';
        return;
    }
    if (verb == "rename" && count == 3)
    {
        const CExplorerLookup lookup(session_);
        const EntityId id = lookup.findEntity(line.getArgument(1).text);
        if (session_.getProject().findEntity(id)->getCollection() != EntityCollection::Topics)
            throw common::EException(fmt::format("{} is no topic.", lookup.quotedName(id)));
        const std::string oldName = lookup.quotedName(id);
        topics.rename(TopicId(id.uuid()), model::fromUtf8(line.getArgument(2).text));
        out << "renamed: topic " << oldName << " to " << lookup.quotedName(id) << '\n';
        return;
    }
    if (verb == "delete" && count == 2)
        return remove(line, out);
    if (verb == "clear" && count == 1)
        return clearSelectionTopic(out);
    throw common::EException(usage);
}

void CTopicCommands::list(std::ostream& out)
{
    // The project's topic choices come in natural order; the one without identifier is no topic.
    host::CTopicEditor editor(session_.getProject());
    for (const CTopic& topic : session_.getProject().getTopics())
        if (!topic.getId().isNull())
            out << CCommandLine::quote(model::toUtf8(topic.getName())) << '\t'
                << editor.memberCount(topic.getId()) << '\n';
}

void CTopicCommands::remove(const CCommandLine& line, std::ostream& out)
{
    const CExplorerLookup lookup(session_);
    const EntityId id = lookup.findEntity(line.getArgument(1).text);
    if (session_.getProject().findEntity(id)->getCollection() != EntityCollection::Topics)
        throw common::EException(fmt::format("{} is no topic.", lookup.quotedName(id)));
    const std::string name = lookup.quotedName(id);
    host::CTopicEditor editor(session_.getProject());
    const bool removed =
        editor.removeAfterAsking({TopicId(id.uuid())}, session_.getHostServices().getDialogService());
    out << (removed ? "deleted: topic " : "kept: topic ") << name << '\n';
}

void CTopicCommands::clearSelectionTopic(std::ostream& out)
{
    model::CProject& project = session_.getProject();
    const CExplorerLookup lookup(session_);
    const EntityIdList selection = lookup.inTreeOrder(session_.getSelection());
    if (selection.empty())
        throw common::EException("Nothing is selected; select entities first.");
    for (const EntityId& id : selection)
        if (!model::collectionInfo(project.findEntity(id)->getCollection()).bearsTopic)
            throw common::EException(fmt::format("{} has no topic to clear.", lookup.quotedName(id)));
    const std::unique_ptr<ITransaction> transaction =
        project.getTransactionHost().openTransaction("Change entities topic");
    for (const EntityId& id : selection)
        project.setEntityTopic(id, std::nullopt);
    transaction->commit();
    out << "topic: none\n";
}

} // namespace aec::shell
