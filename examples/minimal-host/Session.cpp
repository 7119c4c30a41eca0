#include "Session.h"

#include "Project.h"

#include "Common/Exception.h"
#include "aec/Entity.h"
#include "aec/PropertyAssignmentKey.h"

#include <fmt/xchar.h>

#include <type_traits>
#include <utility>

namespace minimal_host
{

aec::IProject& CSession::getCurrentProject() const
{
    if (project_ == nullptr)
        throw common::EException("No project is open.");
    return *project_;
}

const aec::IProject& CSession::getProject() const
{
    return getCurrentProject();
}

bool CSession::isAvailable(const aec::IProject& /*project*/, const aec::PropertyAssignmentKey& key) const
{
    return key == aec::PropertyAssignmentKey::topic();
}

std::wstring CSession::getDisplayName(const aec::PropertyAssignmentKey& key) const
{
    return key == aec::PropertyAssignmentKey::topic() ? L"Topic" : L"";
}

std::wstring CSession::format(const aec::AttributeValue& value) const
{
    return std::visit(
        [this](const auto& alternative) -> std::wstring
        {
            using Alternative = std::decay_t<decltype(alternative)>;
            if constexpr (std::is_same_v<Alternative, std::monostate>)
                return L"(none)";
            else if constexpr (std::is_same_v<Alternative, std::wstring>)
                return alternative;
            else if constexpr (std::is_same_v<Alternative, bool>)
                return alternative ? L"yes" : L"no";
            else if constexpr (std::is_same_v<Alternative, common::UUID>)
            {
                const aec::IEntity* const entity =
                    std::as_const(getCurrentProject()).findEntity(aec::EntityId(alternative));
                if (entity != nullptr)
                    return entity->getName();
                const std::string text = alternative.toString();
                return std::wstring(text.begin(), text.end());
            }
            else
                return fmt::format(L"{}", alternative);
        },
        value);
}

} // namespace minimal_host
