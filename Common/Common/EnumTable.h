#pragma once

#include "Common/EnumUtils.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace enum_utils
{

// Converts between the values of an enum and their text keys, from one table of entries. A table
// may list several keys for one value (aliases accepted when reading); such a table converts keys
// to values, but asking it for a value's key fails, since it could not say which key is meant.
// Meant to be a function-local static; the reverse table is built on first use, without a lock.
template <class Enum, class Char = char>
class CEnumTable
{
public:
    using Key = std::basic_string_view<Char>;

    struct Entry
    {
        Enum value;
        Key key;
    };

    CEnumTable(std::initializer_list<Entry> entries) : entries_(entries) {}

    // Throws bad_conversion when no entry has the key.
    Enum valueOf(Key key) const
    {
        if (const std::optional<Enum> value = tryValueOf(key))
            return *value;
        throw bad_conversion("No enum value matches the key");
    }

    std::optional<Enum> tryValueOf(Key key) const
    {
        const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                        [key](const Entry& candidate) { return candidate.key == key; });
        if (entry == entries_.end())
            return std::nullopt;
        return entry->value;
    }

    // Throws bad_conversion when the table lists the value twice or not at all.
    Key keyOf(Enum value) const
    {
        const std::map<Enum, Key>& keys = reverseTable();
        const auto found = keys.find(value);
        if (found == keys.end())
            throw bad_conversion("No key matches the enum value");
        return found->second;
    }

    // Throws bad_conversion when two entries share a value; the next call tries again.
    const std::map<Enum, Key>& reverseTable() const
    {
        if (!keysByValue_)
        {
            std::map<Enum, Key> keys;
            for (const Entry& entry : entries_)
                if (!keys.emplace(entry.value, entry.key).second)
                    throw bad_conversion(
                        "Ambiguous reverse conversion (multiple enum entries match the same value)");
            keysByValue_ = std::move(keys);
        }
        return *keysByValue_;
    }

private:
    std::vector<Entry> entries_;
    mutable std::optional<std::map<Enum, Key>> keysByValue_;
};

} // namespace enum_utils
