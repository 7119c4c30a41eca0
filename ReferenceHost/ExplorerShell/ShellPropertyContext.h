#pragma once

#include "aec/PropertyContext.h"

namespace aec::shell
{

// The terminal's place for editing entity properties: a document with this context lets the
// explorer's edit-properties command through to the property editor, whose requests the shell
// prints. The terminal has no object of its own whose properties it edits, so the owner is a
// placeholder that only has to exist.
class CShellPropertyContext final : public IPropertyContext
{
public:
    IPropertyContextOwner* getOwner() const override;

private:
    class COwner final : public IPropertyContextOwner
    {
    };

    // Handed out for changing through a const query, as the interface has it.
    mutable COwner owner_;
};

} // namespace aec::shell
