#pragma once

#include "AecModel/AecModelApi.h"

#include <memory>
#include <string>
#include <variant>

namespace aec::model
{

class CTableCells;

// The value of a free-form property: a text, or the cells of an imported table. The cells stay in
// the compact UTF-8 store their reader made, immutable and shared: the entity, the undo journal, a
// copy on the clipboard and the view that shows them hold the one store, which becomes JSON text
// (a list of rows, each a list of texts) only when it is saved or shown as text. Either way the
// value reads, compares and saves as that text.
class AECMODEL_API CPropertyValue
{
public:
    // Not explicit: most values are texts, and a text is a value wherever one is wanted.
    CPropertyValue(std::wstring text);
    CPropertyValue(const wchar_t* text);
    explicit CPropertyValue(std::shared_ptr<const CTableCells> cells);

    // The cells, or null when the value is a text.
    std::shared_ptr<const CTableCells> getCells() const;
    std::wstring toText() const;
    std::string toUtf8() const;

    // Values are equal when their texts are: a table's cells equal the JSON text they save as.
    friend AECMODEL_API bool operator==(const CPropertyValue& left, const CPropertyValue& right);

private:
    std::variant<std::wstring, std::shared_ptr<const CTableCells>> value_;
};

} // namespace aec::model
