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
    // Decomposed first: a letter and its accent fold like the one letter that stands for both.
    text = text.normalized(QString::NormalizationForm_D).toCaseFolded();
    text.replace(u"ß"_s, u"ss"_s); // the toolkit folds to as many letters as there were
    return text.normalized(QString::NormalizationForm_C);
}

// A hit that ends before a combining mark ends in the middle of a character: "x" is not in "x̂".
bool contains(const QString &text, const QString &needle)
{
    for (qsizetype at = text.indexOf(needle); at >= 0; at = text.indexOf(needle, at + 1)) {
        const qsizetype end = at + needle.size();
        if (end == text.size() || !text.at(end).isMark())
            return true;
    }
    return false;
}

} // namespace

ItemSearch::ItemSearch(const menubar::ExtraList &extras)
{
    const bool dotlessI = hasDotlessI();
    m_texts.reserve(extras.size());
    for (const menubar::MenuExtra &extra : extras)
        m_texts.push_back({folded(extra.name, dotlessI), folded(extra.detail, dotlessI)});
}

std::vector<int> ItemSearch::matches(const QString &query) const
{
    const QString needle = folded(menubar::trimmedBlanks(query).toString(), hasDotlessI());
    if (needle.isEmpty()) {
        std::vector<int> all(m_texts.size());
        std::iota(all.begin(), all.end(), 0);
        return all;
    }
    std::vector<int> found;
    for (int i = 0; const Texts &texts : m_texts) {
        if (contains(texts.name, needle) || contains(texts.detail, needle))
            found.push_back(i);
        ++i;
    }
    return found;
}

} // namespace brimshade::model
