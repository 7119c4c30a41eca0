#include "AecModel/AttributeValueFormatter.h"

#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectSessionManager.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

namespace aec::model
{

CAttributeValueFormatter::CAttributeValueFormatter(const IProjectSessionManager& sessionManager)
    : sessionManager_(sessionManager)
{
}

CAttributeValueFormatter::~CAttributeValueFormatter() = default;

std::wstring CAttributeValueFormatter::format(const AttributeValue& value) const
{
    struct CVisitor
    {
        const IProjectSessionManager& sessionManager;

        std::wstring operator()(std::monostate) const { return std::wstring(absentText); }
        std::wstring operator()(const std::wstring& text) const { return text; }
        // fmt writes the shortest text that reads back as the same double.
        std::wstring operator()(double number) const { return fmt::format(L"{}", number); }
        std::wstring operator()(std::int64_t number) const { return fmt::format(L"{}", number); }
        std::wstring operator()(bool flag) const { return flag ? L"Yes" : L"No"; }
        std::wstring operator()(const common::UUID& uuid) const
        {
            const IProject& project = sessionManager.getCurrentProject();
            if (const IEntity* const entity = project.findEntity(EntityId(uuid)))
                return entity->getName();
            return uuid.toWString();
        }
    };
    return std::visit(CVisitor{sessionManager_}, value);
}

} // namespace aec::model
