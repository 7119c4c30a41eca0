#include "FailingServices.h"

#include "aec/ProjectEntityCopyData.h"

#include "Common/Exception.h"

#include <string>

namespace project_explorer::test
{

void FailureSwitch::throwIfFailing(const char* service) const
{
    if (failing)
        throw common::EException(std::string(service) + " failed on purpose");
}

void FailingTypeHandler::create(const aec::EntityId& id)
{
    handler_.create(id);
    throwIfFailing("create");
}

void FailingTypeHandler::remove(const aec::EntityId& id)
{
    handler_.remove(id);
    throwIfFailing("remove");
}

std::wstring FailingSerializer::serialize(const aec::IProjectEntityCopyData& data)
{
    throwIfFailing("serialize");
    return serializer_.serialize(data);
}

std::unique_ptr<aec::IProjectEntityPasteData> FailingSerializer::deserialize(const std::wstring& text,
                                                                             const aec::PasteContext& context)
{
    throwIfFailing("deserialize");
    if (whileDecoding)
        whileDecoding();
    return serializer_.deserialize(text, context);
}

void FailingClipboard::setData(std::uint32_t format, const std::wstring& data)
{
    throwIfFailing("clipboard");
    clipboard_.setData(format, data);
}

std::optional<std::wstring> FailingClipboard::getData(std::uint32_t format) const
{
    throwIfFailing("clipboard");
    return clipboard_.getData(format);
}

} // namespace project_explorer::test
