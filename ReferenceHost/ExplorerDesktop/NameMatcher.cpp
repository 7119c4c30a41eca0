#include "ExplorerDesktop/NameMatcher.h"

#include <QChar>
#include <algorithm>

namespace aec::desktop
{

namespace
{

bool isCombiningMark(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining ||
           category == QChar::Mark_Enclosing;
}

// Drops the zeros that lead a run of digits, keeping the run's last digit, so that "007" and "7"
// read alike.
QString withoutLeadingZeros(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at)
    {
        const bool startsRun = text[at].isDigit() && (at == 0 || !text[at - 1].isDigit());
        if (startsRun)
            while (text[at] == QLatin1Char('0') && at + 1 < text.size() && text[at + 1].isDigit())
                ++at;
        result.append(text[at]);
    }
    return result;
}

} // namespace

CNameMatcher::CNameMatcher(const QString& filter)
{
    setFilter(filter);
}

void CNameMatcher::setFilter(const QString& filter)
{
    words_ = fold(filter).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool CNameMatcher::matchesFolded(const QString& foldedName) const
{
    return std::ranges::all_of(words_,
                               [&foldedName](const QString& word) { return foldedName.contains(word); });
}

QString CNameMatcher::fold(const QString& text)
{
    // Compatibility decomposition splits "é" into "e" and its accent, and "ﬁ" into "fi"; Unicode's
    // own tables do that, which a hand-written list of accented letters would only approximate.
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    QString bare;
    bare.reserve(decomposed.size());
    for (const QChar character : decomposed)
    {
        if (isCombiningMark(character))
            continue;
        // Any kind of space (a no-break space too) separates words as a plain space does.
        bare.append(character.isSpace() ? QLatin1Char(' ') : character);
    }
    return withoutLeadingZeros(bare.toCaseFolded());
}

} // namespace aec::desktop
