#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/EntityId.h"
#include "aec/Topic.h"

#include <cstddef>
#include <string>

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

    TopicId create(const std::wstring& name);
    void rename(const TopicId& topic, const std::wstring& newName);
    // The entities that had the topic keep no topic.
    void remove(const TopicId& topic);

    // How many entities have the topic, for the question before deleting it.
    std::size_t memberCount(const TopicId& topic) const;

private:
    model::CProject& project_;
};

} // namespace aec::host
