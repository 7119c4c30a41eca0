#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/ProjectEntityPasteDataSessionSerializer.h"

#include <string_view>

namespace aec::model
{

// Writes CCopiedEntities as the clipboard's wide string and reads them back: one JSON document
//
//   {"format": "project-entities", "version": 1,
//    "collections": {"sheets": [{"id": "<uuid>", "type": "<uuid>", "name": "Sheet A-101",
//                                "topic": {"id": "<uuid>", "name": "Architecture"},
//                                "properties": {"scale": "1:50"}}, ...],
//                    "tables": [...], ...}}
//
// with the nine copy collections under the project files' collection keys, "topic" and
// "properties" left out when empty. Reading checks the whole text before it returns anything and
// never touches the project: text that does not decode, or entities that the paste context does
// not take, throw common::EException saying what is wrong.
class AECMODEL_API CPasteDataSerializer final : public serialization::IProjectEntityPasteDataSessionSerializer
{
public:
    static constexpr std::string_view formatName = "project-entities";
    static constexpr int version = 1;

    CPasteDataSerializer() = default;
    ~CPasteDataSerializer() override;

    // The data must be CCopiedEntities.
    std::wstring serialize(const IProjectEntityCopyData& data) override;
    // Returns CCopiedEntities.
    std::unique_ptr<IProjectEntityPasteData> deserialize(const std::wstring& text,
                                                         const PasteContext& context) override;
};

} // namespace aec::model
