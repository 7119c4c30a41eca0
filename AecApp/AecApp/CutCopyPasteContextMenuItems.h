#pragma once

#include "AecApp/AecAppApi.h"
#include "aec/MenuItemProvider.h"

#include <string_view>

namespace aec
{

class IGui;

// The cut, copy and paste items, each running the host command of the same name.
class AECAPP_API CCutCopyPasteContextMenuItems : public IMenuItemProvider
{
public:
    static constexpr std::string_view cutIdentifier = "c9856780-1496-481d-a977-04553bcd9fc7";
    static constexpr std::string_view copyIdentifier = "2412a4ab-e752-4a97-b6d1-025f87df6476";
    static constexpr std::string_view pasteIdentifier = "0834841d-0ddc-41e3-a852-326399aa96b5";

    // Cut and copy are enabled when something is selected and the host's command of the item is
    // enabled (it is not when the selection holds nothing that the command acts on); paste follows
    // the state of the host's paste command, which tracks the clipboard. States are read when the
    // items are made.
    CCutCopyPasteContextMenuItems(IGui& gui, bool selectionNotEmpty);

    std::vector<CContextMenuItem> getMenuItems(const ITranslation& translation) const override;
    std::string getName() const override;

private:
    IGui& gui_;
    bool selectionNotEmpty_;
};

} // namespace aec
