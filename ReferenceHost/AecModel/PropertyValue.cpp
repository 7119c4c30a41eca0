#include "AecModel/PropertyValue.h"

#include "AecModel/TableCells.h"
#include "AecModel/WideText.h"
#include "Common/Check.h"

namespace aec::model
{

CPropertyValue::CPropertyValue(std::wstring text) : value_(std::move(text)) {}

CPropertyValue::CPropertyValue(const wchar_t* text) : value_(std::wstring(text)) {}

CPropertyValue::CPropertyValue(std::shared_ptr<const CTableCells> cells) : value_(std::move(cells))
{
    COMMON_PRECONDITION(std::get<1>(value_) != nullptr);
}

std::shared_ptr<const CTableCells> CPropertyValue::getCells() const
{
    const auto* const cells = std::get_if<std::shared_ptr<const CTableCells>>(&value_);
    return cells == nullptr ? nullptr : *cells;
}

std::wstring CPropertyValue::toText() const
{
    const auto* const text = std::get_if<std::wstring>(&value_);
    return text != nullptr ? *text : fromUtf8(toUtf8());
}

std::string CPropertyValue::toUtf8() const
{
    const auto* const text = std::get_if<std::wstring>(&value_);
    return text != nullptr ? model::toUtf8(*text) : getCells()->rowsAsJson(0);
}

bool operator==(const CPropertyValue& left, const CPropertyValue& right)
{
    if (left.value_.index() == 0 && right.value_.index() == 0)
        return std::get<0>(left.value_) == std::get<0>(right.value_);
    if (left.getCells() != nullptr && left.getCells() == right.getCells())
        return true;
    return left.toUtf8() == right.toUtf8();
}

} // namespace aec::model
