#include "ExplorerShell/HostFeedback.h"

#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/EntityTypeNames.h"
#include "ExplorerShell/ExplorerLookup.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/StatusService.h"
#include "HostServices/HostServices.h"

#include <algorithm>
#include <fmt/format.h>
#include <ostream>

namespace aec::shell
{

CHostFeedback::CHostFeedback(host::CExplorerSession& session) : session_(session)
{
    connections_.emplace_back(session_.getPanel().renameRequestedSignal().connect(
        [this](const EntityId& entity)
        {
            const std::string name = CExplorerLookup(session_).quotedName(entity);
            messages_.push_back(fmt::format("rename requested: {} (type: rename {} NEWNAME)", name, name));
        }));
    connections_.emplace_back(session_.getStatusService().statusSignal().connect(
        [this](const std::wstring& message) { messages_.push_back("status: " + model::toUtf8(message)); }));
}

CHostFeedback::~CHostFeedback() = default;

void CHostFeedback::start()
{
    host::CHostServices& services = session_.getHostServices();
    questionsSeen_ = services.getDialogService().getQuestions().size();
    propertyRequestsSeen_ = services.getPropertyEditor().getRequestCount();
    openingDocument_ = documentGui();
    openingsSeen_ = openingDocument_ == nullptr ? 0 : openingDocument_->getOpenedEntities().size();
    messages_.clear();
}

void CHostFeedback::write(std::ostream& out)
{
    const auto& questions = session_.getHostServices().getDialogService().getQuestions();
    for (std::size_t index = questionsSeen_; index < questions.size(); ++index)
        out << "asked: " << model::toUtf8(questions[index].text) << '\n';

    for (const std::string& message : messages_)
        out << message << '\n';
    messages_.clear();

    const host::CDocumentGui* const document = documentGui();
    if (document != nullptr && document == openingDocument_)
    {
        const CExplorerLookup lookup(session_);
        const auto& openings = document->getOpenedEntities();
        for (std::size_t index = openingsSeen_; index < openings.size(); ++index)
            out << "opened: " << lookup.quotedNames(openings[index]) << '\n';
    }

    if (session_.getHostServices().getPropertyEditor().getRequestCount() != propertyRequestsSeen_)
        writeProperties(out);
    start();
}

host::CDocumentGui* CHostFeedback::documentGui() const
{
    if (!session_.hasProject())
        return nullptr;
    return session_.getHostServices().getProxyAppGui().getDocumentGui(
        session_.getProject().getDocument().getKey());
}

void CHostFeedback::writeProperties(std::ostream& out) const
{
    const auto& request = session_.getHostServices().getPropertyEditor().getLastRequest();
    if (!request || !session_.hasProject())
        return;
    model::CProject& project = session_.getProject();
    const std::vector<CTopic> topics = project.getProjectTopics();
    const CExplorerLookup lookup(session_);
    for (const EntityId& id : lookup.inTreeOrder(request->entities))
    {
        const model::CEntity& entity = *project.findEntity(id);
        std::string topic = "no topic";
        if (const std::optional<TopicId> topicId = entity.getTopic())
        {
            const auto found = std::ranges::find(topics, *topicId, &CTopic::getId);
            topic = "topic " + (found == topics.end() ? topicId->uuid().toString()
                                                      : CCommandLine::quote(model::toUtf8(found->getName())));
        }
        out << fmt::format("properties of {} ({}, {}):\n", lookup.quotedName(id),
                           entityTypeName(entity.getType()), topic);
        for (const auto& [name, value] : entity.getProperties())
            out << fmt::format("  {}: {}\n", name, value.toUtf8());
        if (entity.getProperties().empty())
            out << "  (no properties)\n";
    }
}

} // namespace aec::shell
