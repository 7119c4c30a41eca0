#pragma once

#include "aec/EntityId.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace aec::desktop
{

// One row of the explorer's tree as the desktop shows it: a group, a subgroup or an entity, under
// an invisible root. The explorer's own objects and ranges die with every rebuild, so the item
// model keeps this copy of what it last showed and compares it with what the explorer shows now to
// tell its views what changed. A group without grouping holds its entities itself. Nodes live on the heap and keep their address while they are shown, so that an
// index's internal pointer stays valid as long as the row.
//
// A node is found among its siblings by its key: a group by its identifier, a subgroup by its
// name, an entity by its identifier.
class CExplorerTreeNode
{
public:
    enum class Kind
    {
        Root,
        Group,
        Subgroup,
        Entity,
    };

    // What a node shows; two nodes of one key that show the same need no update.
    struct Display
    {
        std::wstring name;
        std::size_t entityCount = 0; // groups and subgroups
        bool expanded = false;       // groups and subgroups
        bool renamable = false;      // entities

        friend bool operator==(const Display&, const Display&) = default;
    };

    CExplorerTreeNode(Kind kind, std::wstring key, Display display);
    static std::unique_ptr<CExplorerTreeNode> makeEntity(const EntityId& entity, Display display);
    CExplorerTreeNode(const CExplorerTreeNode&) = delete;
    CExplorerTreeNode& operator=(const CExplorerTreeNode&) = delete;

    Kind getKind() const noexcept { return kind_; }
    const std::wstring& getKey() const noexcept { return key_; }
    const Display& getDisplay() const noexcept { return display_; }
    void setDisplay(Display display) { display_ = std::move(display); }
    // Only for entities.
    const EntityId& getEntity() const;

    // Null for the root.
    CExplorerTreeNode* getParent() const noexcept { return parent_; }
    // The row among the parent's children.
    int getRow() const noexcept { return row_; }
    int getChildCount() const noexcept { return static_cast<int>(children_.size()); }
    CExplorerTreeNode& getChild(int row) const;
    // The row of the first child at or after `from` with the key, or -1.
    int findChild(const std::wstring& key, int from = 0) const;

    void appendChild(std::unique_ptr<CExplorerTreeNode> child);
    // Inserts the nodes as the children from `row` on.
    void insertChildren(int row, std::vector<std::unique_ptr<CExplorerTreeNode>> children);
    // Takes the children `first` to `last` (inclusive) away.
    void removeChildren(int first, int last);
    // Puts the children in a new order: the child at row i afterwards is the one that was at row
    // `oldRows[i]`, which must name every row once.
    void permuteChildren(const std::vector<int>& oldRows);
    // Hands every child over, leaving the node without children.
    std::vector<std::unique_ptr<CExplorerTreeNode>> releaseChildren();

private:
    void adopt(CExplorerTreeNode& child) noexcept { child.parent_ = this; }
    void renumberFrom(int row) noexcept;

    Kind kind_;
    std::wstring key_;
    Display display_;
    std::optional<EntityId> entity_;
    CExplorerTreeNode* parent_ = nullptr;
    int row_ = 0;
    std::vector<std::unique_ptr<CExplorerTreeNode>> children_;
};

} // namespace aec::desktop
