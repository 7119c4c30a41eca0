#include "ExplorerDesktop/ExplorerTreeNode.h"

#include "Common/Check.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace aec::desktop
{

CExplorerTreeNode::CExplorerTreeNode(Kind kind, std::wstring key, Display display)
    : kind_(kind), key_(std::move(key)), display_(std::move(display))
{
}

std::unique_ptr<CExplorerTreeNode> CExplorerTreeNode::makeEntity(const EntityId& entity, Display display)
{
    auto node =
        std::make_unique<CExplorerTreeNode>(Kind::Entity, entity.uuid().toWString(), std::move(display));
    node->entity_ = entity;
    return node;
}

const EntityId& CExplorerTreeNode::getEntity() const
{
    COMMON_PRECONDITION(entity_.has_value());
    return *entity_;
}

CExplorerTreeNode& CExplorerTreeNode::getChild(int row) const
{
    COMMON_PRECONDITION(row >= 0 && row < getChildCount());
    return *children_[static_cast<std::size_t>(row)];
}

int CExplorerTreeNode::findChild(const std::wstring& key, int from) const
{
    for (int row = std::max(from, 0); row < getChildCount(); ++row)
        if (children_[static_cast<std::size_t>(row)]->key_ == key)
            return row;
    return -1;
}

void CExplorerTreeNode::appendChild(std::unique_ptr<CExplorerTreeNode> child)
{
    COMMON_PRECONDITION(child != nullptr);
    adopt(*child);
    child->row_ = getChildCount();
    children_.push_back(std::move(child));
}

void CExplorerTreeNode::insertChildren(int row, std::vector<std::unique_ptr<CExplorerTreeNode>> children)
{
    COMMON_PRECONDITION(row >= 0 && row <= getChildCount());
    for (const std::unique_ptr<CExplorerTreeNode>& child : children)
    {
        COMMON_PRECONDITION(child != nullptr);
        adopt(*child);
    }
    children_.insert(children_.begin() + row, std::make_move_iterator(children.begin()),
                     std::make_move_iterator(children.end()));
    renumberFrom(row);
}

void CExplorerTreeNode::removeChildren(int first, int last)
{
    COMMON_PRECONDITION(first >= 0 && first <= last && last < getChildCount());
    children_.erase(children_.begin() + first, children_.begin() + last + 1);
    renumberFrom(first);
}

void CExplorerTreeNode::permuteChildren(const std::vector<int>& oldRows)
{
    COMMON_PRECONDITION(oldRows.size() == children_.size());
    std::vector<std::unique_ptr<CExplorerTreeNode>> permuted;
    permuted.reserve(children_.size());
    for (const int row : oldRows)
    {
        COMMON_PRECONDITION(row >= 0 && row < getChildCount());
        COMMON_PRECONDITION(children_[static_cast<std::size_t>(row)] != nullptr);
        permuted.push_back(std::move(children_[static_cast<std::size_t>(row)]));
    }
    children_ = std::move(permuted);
    renumberFrom(0);
}

std::vector<std::unique_ptr<CExplorerTreeNode>> CExplorerTreeNode::releaseChildren()
{
    for (const std::unique_ptr<CExplorerTreeNode>& child : children_)
        child->parent_ = nullptr;
    return std::exchange(children_, {});
}

void CExplorerTreeNode::renumberFrom(int row) noexcept
{
    for (auto index = static_cast<std::size_t>(row); index < children_.size(); ++index)
        children_[index]->row_ = static_cast<int>(index);
}

} // namespace aec::desktop
