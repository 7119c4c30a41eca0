#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/EntityId.h"
#include "aec/Topic.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace aec
{
class IGeneralPurposeDialogService;
} // namespace aec

namespace aec::model
{
class CProject;
} // namespace aec::model

namespace aec::host
{

// Topics as the user manages them in either host program: made, renamed and deleted, each as one
// undo step. The explorer library has no command for these (topics are no handled type), so the host
// runs them in transactions of its own. Names follow the one naming rule of every entity; a refused
// name throws common::EException saying why and changes nothing.
class HOSTFRAME_API CTopicEditor
{
public:
    explicit CTopicEditor(model::CProject& project);

    // Without a name the topic is named "Topic N", the first number no topic has.
    TopicId create(const std::optional<std::wstring>& name = std::nullopt);
    void rename(const TopicId& topic, const std::wstring& newName);
    // The entities that had the topics keep no topic; one undo step for all of them.
    void remove(const std::vector<TopicId>& topics);
    // Asks the dialog service first (how many entities lose their topic) and removes the topics
    // only on yes; whether it removed them.
    bool removeAfterAsking(const std::vector<TopicId>& topics, const IGeneralPurposeDialogService& dialogs);

    // How many entities have the topic, for the question before deleting it.
    std::size_t memberCount(const TopicId& topic) const;
    // Whether the entity is one of the project's topics.
    bool isTopic(const EntityId& entity) const;

private:
    model::CProject& project_;
};

} // namespace aec::host
