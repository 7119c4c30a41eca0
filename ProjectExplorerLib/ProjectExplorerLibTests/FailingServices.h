#pragma once

// Wrappers around the reference host's services that fail on demand, to check that a failed
// operation leaves the project as it was, and a property context that the host does not offer.

#include "aec/Clipboard.h"
#include "aec/EntityTypeHandler.h"
#include "aec/ProjectEntityPasteDataSessionSerializer.h"
#include "aec/PropertyContext.h"

#include <functional>

namespace project_explorer::test
{

// Throws common::EException when switched on: the failure a host service reports.
struct FailureSwitch
{
    bool failing = false;
    void throwIfFailing(const char* service) const;
};

// Fails after the real handler has changed the project, so that a rollback has something to undo.
class FailingTypeHandler : public aec::IEntityTypeHandler, public FailureSwitch
{
public:
    explicit FailingTypeHandler(aec::IEntityTypeHandler& handler) : handler_(handler) {}
    void create(const aec::EntityId& id) override;
    aec::EntityTypeId getEntityType() const override { return handler_.getEntityType(); }
    void remove(const aec::EntityId& id) override;
    void rename(const aec::EntityId& id, const std::wstring& newName) override
    {
        handler_.rename(id, newName);
    }

private:
    aec::IEntityTypeHandler& handler_;
};

// Runs `whileDecoding`, when set, as it decodes: a look at the host while a paste is under way.
class FailingSerializer : public aec::serialization::IProjectEntityPasteDataSessionSerializer,
                          public FailureSwitch
{
public:
    explicit FailingSerializer(IProjectEntityPasteDataSessionSerializer& serializer) : serializer_(serializer)
    {
    }
    std::wstring serialize(const aec::IProjectEntityCopyData& data) override;
    std::unique_ptr<aec::IProjectEntityPasteData> deserialize(const std::wstring& text,
                                                              const aec::PasteContext& context) override;

    std::function<void()> whileDecoding;

private:
    IProjectEntityPasteDataSessionSerializer& serializer_;
};

class FailingClipboard : public aec::IClipboard, public FailureSwitch
{
public:
    explicit FailingClipboard(aec::IClipboard& clipboard) : clipboard_(clipboard) {}
    void setData(std::uint32_t format, const std::wstring& data) override;
    std::optional<std::wstring> getData(std::uint32_t format) const override;
    bool hasData(std::uint32_t format) const override { return clipboard_.hasData(format); }

private:
    aec::IClipboard& clipboard_;
};

// A document's property context that owns itself until its owner is taken away.
class TestPropertyContext : public aec::IPropertyContext, public aec::IPropertyContextOwner
{
public:
    aec::IPropertyContextOwner* getOwner() const override { return owner; }

    aec::IPropertyContextOwner* owner = this;
};

} // namespace project_explorer::test
