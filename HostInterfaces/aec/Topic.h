#pragma once

#include "Common/ID.h"

#include <string>

namespace aec
{

class CTopic;
using TopicId = common::ID<CTopic>;

// A topic of the project: the identifier and name of one topic entity.
class CTopic
{
public:
    CTopic(const TopicId& id, std::wstring name) : id_(id), name_(std::move(name)) {}

    const TopicId& getId() const noexcept { return id_; }
    const std::wstring& getName() const noexcept { return name_; }

private:
    TopicId id_;
    std::wstring name_;
};

} // namespace aec
