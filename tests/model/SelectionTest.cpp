#include "ModelContext.h"

namespace brimshade::model::tests {

TEST(Selection, StepsThroughHiddenThenVisibleItemsAndStaysInTheList)
{
    const std::tuple<QString, int, QString> cases[] = {
        {u""_s, 1, u"h0"_s},
        {u""_s, -1, u"h0"_s},
        {u""_s, 4, u"v0"_s}, // the first arrow down without a selection
        {u"gone"_s, 1, u"h0"_s},
        {u"h2"_s, 1, u"v0"_s},
        {u"v0"_s, -1, u"h2"_s},
        {u"h0"_s, -5, u"h0"_s},
        {u"h0"_s, 100, u"v1"_s},
        {u"v1"_s, std::numeric_limits<int>::max(), u"v1"_s},
        {u"h1"_s, std::numeric_limits<int>::min(), u"h0"_s},
    };
    for (const auto &[from, step, to] : cases) {
        ModelContext context;
        NotchModel &model = context.model();
        model.setExtras({item(u"v0"_s), item(u"h0"_s, true), item(u"h1"_s, true), item(u"v1"_s), item(u"h2"_s, true)});
        model.setSelectedID(from);
        model.setHoveredID(u"h1"_s);
        model.moveSelection(step);
        EXPECT_EQ(model.selectedID(), to) << qPrintable(from) << step;
        EXPECT_EQ(model.hoveredID(), QString());
    }
}

TEST(Selection, TypingSelectsTheFirstResult)
{
    const std::pair<QString, QString> cases[] = {
        {u""_s, u"h0"_s}, {u"visible"_s, u"v0"_s}, {u"nothing"_s, u""_s}, {u"hidden"_s, u"h0"_s}};
    ModelContext context;
    NotchModel &model = context.model();
    model.setExtras(items(2, 2));
    for (const auto &[query, selected] : cases) {
        model.setHoveredID(u"v1"_s);
        model.setQuery(query);
        EXPECT_EQ(model.selectedID(), selected) << qPrintable(query);
        EXPECT_EQ(model.hoveredID(), QString());
    }
}

TEST(Selection, WithoutItemsNothingIsSelectedAndAStepChangesNothing)
{
    ModelContext context;
    NotchModel &model = context.model();
    model.setQuery(u"a"_s);
    EXPECT_EQ(model.selectedID(), QString());
    model.setSelectedID(u"gone"_s);
    model.setHoveredID(u"gone"_s);
    model.moveSelection(1);
    EXPECT_EQ(model.selectedID(), u"gone"_s);
    EXPECT_EQ(model.hoveredID(), u"gone"_s);
}

TEST(Selection, FallsToTheFirstMatchWhereAKeyOrASelectionAskedForOne)
{
    const std::tuple<const char *, std::function<void(NotchModel &)>, QString> cases[] = {
        {"nothing asked", [](NotchModel &) {}, {}},
        {"a query before the first result", [](NotchModel &m) { m.setQuery(u"visible"_s); }, u"v0"_s},
        {"a query of no item", [](NotchModel &m) { m.setQuery(u"nothing"_s); }, {}},
        {"a selected item that stays", [](NotchModel &m) { m.setSelectedID(u"v1"_s); }, u"v1"_s},
        {"a selected item that goes", [](NotchModel &m) { m.setSelectedID(u"gone"_s); }, u"h0"_s},
        {"a query taken back, without a result", [](NotchModel &m) { m.setQuery(u"visible"_s), m.setQuery({}); }, {}},
        {"a new opening",
         [](NotchModel &m) {
             m.setSelectedID(u"gone"_s), m.setQuery(u"visible"_s);
             m.resetSearch();
         },
         {}},
    };
    for (const auto &[what, ask, selected] : cases) {
        ModelContext context;
        NotchModel &model = context.model();
        ask(model);
        model.setExtras(items(2, 2));
        EXPECT_EQ(model.selectedID(), selected) << what;
    }
    // As soon as there is one, though there was none in between.
    ModelContext context;
    NotchModel &model = context.model();
    model.setExtras(items(1, 1));
    model.setSelectedID(u"v0"_s);
    model.setExtras({});
    model.setExtras(items(0, 3));
    EXPECT_EQ(model.selectedID(), u"v0"_s) << "it came back";
    model.setQuery(u"nothing"_s);
    model.setQuery({});
    model.setShowVisible(false);
    model.setExtras(items(1, 1));
    EXPECT_EQ(model.selectedID(), u"h0"_s);
}

TEST(Selection, ComparesIdsByCanonicalEquivalence)
{
    const std::pair<QString, QString> same[] = {
        {u"1-0-caf\u00e9"_s, u"1-0-cafe\u0301"_s}, {u"1-0-\u212a"_s, u"1-0-K"_s}, {u"1-0-a"_s, u"1-0-a"_s}};
    const std::pair<QString, QString> different[] = {{u"1-0-a"_s, u"1-0-A"_s}, {u"1-0-e"_s, u"1-0-\u00e9"_s}};
    ModelContext context;
    NotchModel &model = context.model();
    const auto finds = [&](const QString &id, const QString &selected) {
        model.setExtras({item(u"0-0-"_s), item(id)});
        model.setSelectedID(selected);
        return model.selectedMatch() == &model.extras()[1] && model.extraWithID(selected) == &model.extras()[1];
    };
    for (const auto &[id, selected] : same)
        EXPECT_TRUE(finds(id, selected)) << qPrintable(id);
    for (const auto &[id, selected] : different)
        EXPECT_FALSE(finds(id, selected)) << qPrintable(id);
}

} // namespace brimshade::model::tests
