#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace aec::desktop
{

// Whether an entity's name matches what the user typed into the explorer's filter box. The match
// is the one users know from file browsers: every word of the filter occurs somewhere in the name,
// in any order, without regard to case or accents ("cafe" finds "Café"), and digit runs count by
// their value, as the tree's natural order does ("level 2" finds "Level 02").
//
// Folding a name costs far more than looking for the words in it, and the filter asks about every
// name again at each key the user types, so folded names are kept for the matcher's lifetime.
class CNameMatcher
{
public:
    explicit CNameMatcher(const QString& filter = QString());

    // No words: everything matches.
    bool isEmpty() const noexcept { return words_.isEmpty(); }
    bool matches(const QString& name) const;
    // Keeps the folded names, but matches the new filter's words from now on.
    void setFilter(const QString& filter);

    // The name as the matcher compares it: compatibility-decomposed, without combining marks,
    // case-folded, with the leading zeros of digit runs dropped.
    static QString fold(const QString& text);

private:
    const QString& folded(const QString& name) const;

    QStringList words_;
    mutable QHash<QString, QString> foldedNames_;
};

} // namespace aec::desktop
