#pragma once

#include "aec/AecApi.h"

#include <string>

namespace aec
{

// One direct change of an entity's attributes, submitted to the editing service.
class AEC_INTERFACE IEditCommand
{
public:
    virtual ~IEditCommand() = default;

    // Sets the entity's new name.
    virtual void setName(const std::wstring& name) = 0;
};

} // namespace aec
