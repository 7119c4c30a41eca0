#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/AttributeValueFormatter.h"

#include <string_view>

namespace aec
{
class IProjectSessionManager;
}

namespace aec::model
{

// The display text of property values, as the explorer names subgroups with it:
// - an absent value (std::monostate) reads "(No topic)": the topic is the one grouping property
//   the host offers, and the parentheses sort that subgroup before every named one;
// - a UUID names another entity and reads as that entity's name in the current project (a topic's
//   name), or as the UUID's text when the project has no such entity;
// - texts read as they are; whole numbers in decimal; other numbers in the shortest form that reads
//   back to the same value; booleans as "Yes" and "No".
class AECMODEL_API CAttributeValueFormatter final : public IAttributeValueFormatter
{
public:
    static constexpr std::wstring_view absentText = L"(No topic)";

    explicit CAttributeValueFormatter(const IProjectSessionManager& sessionManager);
    ~CAttributeValueFormatter() override;

    // Reading a UUID needs the current project; without one, common::EException passes through.
    std::wstring format(const AttributeValue& value) const override;

private:
    const IProjectSessionManager& sessionManager_;
};

} // namespace aec::model
