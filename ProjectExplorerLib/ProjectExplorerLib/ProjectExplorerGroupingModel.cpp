#include "ProjectExplorerLib/ProjectExplorerGroupingModel.h"

#include "aec/PropertyCatalog.h"

#include "Common/Check.h"
#include "Common/LogicalCompare.h"

#include <boost/algorithm/string/join.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/range/adaptor/transformed.hpp>

#include <algorithm>

namespace project_explorer
{

namespace
{

constexpr wchar_t keyTextSeparator = L'#';

} // namespace

CProjectExplorerGroupingModel::CProjectExplorerGroupingModel(const common::UUID& groupId,
                                                             std::vector<aec::PropertyAssignmentKey> candidateKeys,
                                                             const aec::IProject& project,
                                                             const aec::IPropertyCatalog& catalog)
    : groupId_(groupId), candidateKeys_(std::move(candidateKeys)), project_(project), catalog_(catalog)
{
}

CProjectExplorerGroupingModel::~CProjectExplorerGroupingModel() = default;

int CProjectExplorerGroupingModel::getSortOrder() const
{
    return sortOrder_;
}

void CProjectExplorerGroupingModel::setSortOrder(int sortOrder)
{
    if (sortOrder == sortOrder_)
        return;
    sortOrder_ = sortOrder;
    changed_();
}

std::optional<std::wstring> CProjectExplorerGroupingModel::getGroupingKeyText() const
{
    if (groupingKey_ == aec::PropertyAssignmentKey::noGrouping())
        return std::nullopt;
    return toText(groupingKey_);
}

void CProjectExplorerGroupingModel::setGroupingKeyText(const std::optional<std::wstring>& text)
{
    setGroupingKey(text ? fromText(*text) : aec::PropertyAssignmentKey::noGrouping());
}

std::vector<aec::GroupingOption> CProjectExplorerGroupingModel::getGroupingOptions() const
{
    std::vector<aec::GroupingOption> options;
    for (const aec::PropertyAssignmentKey& candidate : candidateKeys_)
    {
        if (isCandidateAvailable(candidate))
            options.push_back({toText(candidate), catalog_.getDisplayName(candidate)});
    }
    std::stable_sort(options.begin(), options.end(), [](const aec::GroupingOption& left, const aec::GroupingOption& right) {
        return common::compareLogical(left.displayName, right.displayName) < 0;
    });
    return options;
}

aec::VoidSignal& CProjectExplorerGroupingModel::changedSignal() const
{
    return changed_;
}

aec::PropertyAssignmentKey CProjectExplorerGroupingModel::getGroupingKey() const
{
    return groupingKey_;
}

void CProjectExplorerGroupingModel::setGroupingKey(const aec::PropertyAssignmentKey& key)
{
    COMMON_PRECONDITION(isGroupingKeyAvailable(key));

    if (key == groupingKey_)
        return;
    groupingKey_ = key;
    changed_();
}

bool CProjectExplorerGroupingModel::isGroupingKeyAvailable(const aec::PropertyAssignmentKey& key) const
{
    if (key == aec::PropertyAssignmentKey::noGrouping())
        return true;
    return std::any_of(candidateKeys_.begin(), candidateKeys_.end(), [&](const aec::PropertyAssignmentKey& candidate) {
        return candidate == key && isCandidateAvailable(candidate);
    });
}

bool CProjectExplorerGroupingModel::isCandidateAvailable(const aec::PropertyAssignmentKey& candidate) const
{
    return catalog_.isAvailable(project_, candidate);
}

std::wstring CProjectExplorerGroupingModel::toText(const aec::PropertyAssignmentKey& key)
{
    std::vector<common::UUID> identifiers = key.getPath();
    identifiers.push_back(key.getProperty());
    const auto texts = identifiers | boost::adaptors::transformed([](const common::UUID& uuid) { return uuid.toWString(); });
    return boost::algorithm::join(texts, std::wstring(1, keyTextSeparator));
}

aec::PropertyAssignmentKey CProjectExplorerGroupingModel::fromText(std::wstring_view text)
{
    std::vector<std::wstring_view> parts;
    boost::algorithm::split(parts, text, [](wchar_t character) { return character == keyTextSeparator; });

    // A part that is no identifier makes value() throw std::bad_optional_access, which is how a
    // stored text that no longer reads reaches the caller.
    std::vector<common::UUID> path;
    for (std::size_t index = 0; index + 1 < parts.size(); ++index)
        path.push_back(common::UUID::tryParse(parts[index]).value());
    const common::UUID property = common::UUID::tryParse(parts.back()).value();
    return aec::PropertyAssignmentKey(std::move(path), property);
}

} // namespace project_explorer
