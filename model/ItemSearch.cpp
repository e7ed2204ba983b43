#include "ItemSearch.h"
#include "menubar/Text.h"

#include <QLocale>
#include <numeric>

namespace brimshade::model {

namespace {

using namespace Qt::StringLiterals;

// Turkish and Azerbaijani tell a dotted i from a dotless one in both cases.
bool hasDotlessI()
{
    const QLocale::Language language = QLocale().language();
    return language == QLocale::Turkish || language == QLocale::Azerbaijani;
}

QString folded(QString text, bool dotlessI)
{
    if (dotlessI)
        text.replace(u'I', u'ı').replace(u'İ', u'i');
    // Decomposed first: a letter and its accent then fold like the single letter that stands for both.
    text = text.normalized(QString::NormalizationForm_D).toCaseFolded();
    text.replace(u"ß"_s, u"ss"_s); // the toolkit never folds one letter to two
    return text.normalized(QString::NormalizationForm_C);
}

// Ends each text. No meaningful text contains it, so no hit reaches across it.
constexpr QChar kEnd = u'\uffff';

// A hit that ends before a combining mark ends in the middle of a character: "x" is not in "x̂".
bool endsInsideCharacter(const QString &text, qsizetype end)
{
    return text.at(end).isMark();
}

} // namespace

ItemSearch::ItemSearch(const menubar::ExtraList &extras)
{
    const bool dotlessI = hasDotlessI();
    m_ends.reserve(extras.size());
    for (const menubar::MenuExtra &extra : extras) {
        m_text += folded(extra.name, dotlessI) + kEnd + folded(extra.detail, dotlessI) + kEnd;
        m_ends.push_back(m_text.size());
    }
}

std::vector<int> ItemSearch::matches(const QString &query) const
{
    const QString needle = folded(menubar::trimmedBlanks(query).toString(), hasDotlessI());
    if (needle.isEmpty()) {
        std::vector<int> all(m_ends.size());
        std::iota(all.begin(), all.end(), 0);
        return all;
    }
    std::vector<int> found;
    if (needle.contains(kEnd))
        return found;
    auto item = m_ends.begin();
    for (qsizetype at = m_text.indexOf(needle); at >= 0;) {
        while (*item <= at)
            ++item;
        const bool isHit = !endsInsideCharacter(m_text, at + needle.size());
        if (isHit)
            found.push_back(static_cast<int>(item - m_ends.begin()));
        at = m_text.indexOf(needle, isHit ? *item : at + 1);
    }
    return found;
}

} // namespace brimshade::model
