#include "ModelContext.h"

#include <QLocale>
#include <QRandomGenerator>

namespace brimshade::model::tests {

ExtraList library()
{
    return {item(u"cal"_s, true, u"Calendar"_s, u"3 events"_s),
            item(u"bat"_s, false, u"Battery"_s, u"80 %"_s),
            item(u"pwr"_s, true, u"Power"_s, u"Low bat"_s),
            item(u"cafe"_s, false, u"Cafe\u0301 Timer"_s, u"Straße"_s), // the accent is a separate combining mark
            item(u"math"_s, false, u"x\u0302 Plot"_s, u"İstanbul Ilgaz"_s),
            item(u"line"_s, true, u"Two\nLines"_s, u"end\n"_s),
            item(u"quad"_s, true, u"q\u0302 by q"_s)};
}

TEST(Search, FindsNamesAndDetailsAsAPersonTypesThem)
{
    const std::pair<QString, QStringList> cases[] = {
        {u""_s, {u"cal"_s, u"bat"_s, u"pwr"_s, u"cafe"_s, u"math"_s, u"line"_s, u"quad"_s}},
        {u" \t\u3000"_s, {u"cal"_s, u"bat"_s, u"pwr"_s, u"cafe"_s, u"math"_s, u"line"_s, u"quad"_s}}, // only blanks
        {u"  cal  "_s, {u"cal"_s}},
        {u"BAT"_s, {u"bat"_s, u"pwr"_s}}, // in a name, and only in a detail
        {u"caf\u00e9"_s, {u"cafe"_s}},
        {u"CAF\u00c9"_s, {u"cafe"_s}},
        {u"cafe"_s, {}}, // accents matter
        {u"STRASSE"_s, {u"cafe"_s}},
        {u"x"_s, {}}, // half of a character that has no single code
        {u"x\u0302"_s, {u"math"_s}},
        {u"q"_s, {u"quad"_s}}, // a whole one after such a half
        {u"pwr"_s, {}}, // ids are not searched
        {u"o\nl"_s, {u"line"_s}},
        {u"end\n"_s, {u"line"_s}}, // a line break is not a blank: it stays in the query
        {u"\nend"_s, {}},
    };
    for (const auto &[query, expected] : cases) {
        ModelContext context;
        context.model().setExtras(library());
        context.model().setQuery(query);
        EXPECT_EQ(context.ids(context.model().matches()), expected) << qPrintable(query);
    }
}

TEST(Search, KnowsTheTurkishDots)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish, QLocale::Turkey));
    ModelContext context;
    context.model().setExtras(library());
    context.model().setQuery(u"istan"_s);
    EXPECT_EQ(context.ids(context.model().matches()), QStringList{u"math"_s});
    context.model().setQuery(u"ilgaz"_s);
    EXPECT_TRUE(context.model().matches().empty());
    QLocale::setDefault(before);
}

TEST(Search, ShowsVisibleItemsByTheQueryAsTyped)
{
    const std::tuple<bool, QString, QStringList, QStringList> cases[] = {
        {true, u""_s, {u"h0"_s, u"h1"_s}, {u"v0"_s}},
        {false, u""_s, {u"h0"_s, u"h1"_s}, {}},
        {false, u" "_s, {u"h0"_s, u"h1"_s}, {u"v0"_s}}, // filters nothing, but is a query
        {false, u"visi"_s, {}, {u"v0"_s}},
        {true, u"hid"_s, {u"h0"_s, u"h1"_s}, {}},
    };
    for (const auto &[showVisible, query, hidden, visible] : cases) {
        ModelContext context;
        NotchModel &model = context.model();
        model.setExtras(items(2, 1));
        model.setShowVisible(showVisible);
        model.setQuery(query);
        EXPECT_EQ(context.ids(model.hiddenMatches()), hidden) << qPrintable(query);
        EXPECT_EQ(context.ids(model.visibleMatches()), visible) << qPrintable(query);
        EXPECT_EQ(model.hiddenCount(), 2);
    }
}

// What is cached between reads must never show: after any sequence of changes, results are as if computed on the spot.
TEST(Search, ReadsAsIfComputedAnewAfterAnyChange)
{
    QRandomGenerator random(7);
    ModelContext context;
    NotchModel &model = context.model();
    const auto check = [&] {
        NotchModel fresh(context.defaults, context.loginItems);
        fresh.setExtras(model.extras());
        fresh.setQuery(model.query());
        EXPECT_EQ(model.matches(), fresh.matches());
        EXPECT_EQ(model.hiddenMatches(), fresh.hiddenMatches());
        EXPECT_EQ(model.visibleMatches(), fresh.visibleMatches());
        EXPECT_EQ(model.panelSize(), fresh.panelSize());
    };
    QObject::connect(&model, &NotchModel::matchesChanged, check);
    for (int i = 0; i < 200; ++i) {
        switch (random.bounded(3)) {
        case 0:
            model.setExtras(items(random.bounded(12), random.bounded(12)));
            break;
        case 1:
            model.setQuery(QStringList{u""_s, u" "_s, u"h"_s, u"i"_s, u"vis"_s, u"z"_s}.at(random.bounded(6)));
            break;
        default:
            model.setShowVisible(random.bounded(2) == 0);
        }
        check();
    }
}

} // namespace brimshade::model::tests
