#pragma once

#include <QString>
#include <QStringList>

namespace aec::desktop
{

// Whether an entity's name matches what the user typed into the explorer's filter box. The match
// is the one users know from file browsers: every word of the filter occurs somewhere in the name,
// in any order, without regard to case or accents ("cafe" finds "Café"), and digit runs count by
// their value, as the tree's natural order does ("level 2" finds "Level 02").
class CNameMatcher
{
public:
    explicit CNameMatcher(const QString& filter = QString());

    // No words: everything matches.
    bool isEmpty() const noexcept { return words_.isEmpty(); }
    // Whether the name, as fold() made it, holds every word of the filter.
    bool matchesFolded(const QString& foldedName) const;
    void setFilter(const QString& filter);

    // The name as the matcher compares it: compatibility-decomposed, without combining marks,
    // case-folded, with the leading zeros of digit runs dropped.
    static QString fold(const QString& text);

private:
    QStringList words_;
};

} // namespace aec::desktop
