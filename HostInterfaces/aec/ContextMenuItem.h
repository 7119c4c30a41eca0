#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace aec
{

// One entry of a context menu: a value record, copied into and out of vectors.
class CContextMenuItem
{
public:
    using Action = std::function<void()>;
    struct SeparatorTag
    {
    };

    // An item whose action does nothing.
    CContextMenuItem() = default;
    // A command item.
    CContextMenuItem(std::wstring text, std::string identifier, Action action, bool enabled, bool flag,
                     std::uint32_t number)
        : text_(std::move(text)), action_(action ? std::move(action) : Action([] {})), enabled_(enabled),
          flag_(flag), number_(number), identifier_(std::move(identifier))
    {
    }
    // A separator line.
    explicit CContextMenuItem(SeparatorTag) : separator_(true) {}

    const std::wstring& getText() const noexcept { return text_; }
    const std::wstring& getSecondText() const noexcept { return secondText_; }
    void setSecondText(std::wstring text) { secondText_ = std::move(text); }
    const Action& getAction() const noexcept { return action_; }
    bool isEnabled() const noexcept { return enabled_; }
    void setEnabled(bool enabled) noexcept { enabled_ = enabled; }
    bool isSeparator() const noexcept { return separator_; }
    bool getFlag() const noexcept { return flag_; }
    bool isReserved() const noexcept { return reserved_; }
    std::uint32_t getNumber() const noexcept { return number_; }
    const std::string& getIdentifier() const noexcept { return identifier_; }
    const std::vector<CContextMenuItem>& getSubItems() const noexcept { return subItems_; }
    void addSubItem(CContextMenuItem item) { subItems_.push_back(std::move(item)); }

    // Runs the item's action.
    void run() const { action_(); }

private:
    std::wstring text_;
    std::wstring secondText_;
    Action action_ = [] {};
    bool enabled_ = false;
    bool separator_ = false;
    bool flag_ = false;
    bool reserved_ = false;
    std::uint32_t number_ = 0;
    std::string identifier_;
    std::vector<CContextMenuItem> subItems_;
};

} // namespace aec
