#include "desktop/core/BarOrder.h"
#include "support/Test.h"

#include <limits>

namespace brimshade::desktop {

namespace {

constexpr double kWide = std::numeric_limits<double>::infinity();

// One letter per item, right to left, each 10 points wide: "P" is pinned, "|" our own one, capitals are listed, small
// letters come and go.
class Bar {
public:
    explicit Bar(const QString &letters)
    {
        for (const QChar letter : letters)
            add(letter);
    }
    void add(QChar letter)
    {
        auto entry = std::make_shared<BarEntry>();
        entry->identifier = letter;
        entry->width = 10;
        entry->place = letter == u'P' ? BarEntry::Place::pinned
            : letter == u'|'          ? BarEntry::Place::own
                                      : BarEntry::Place::movable;
        if (letter.isLower())
            entry->kept = KeptItem{letter, {}, 0};
        order.add(entry);
    }
    void remove(QChar letter) { order.remove(entry(letter)); }
    BarEntryPointer entry(QChar letter) const
    {
        return *std::ranges::find(order.laidOut(), QString(letter), &BarEntry::identifier);
    }
    // Drops it left of index others that are shown.
    bool drop(QChar letter, std::size_t index, double room = kWide) { return order.drop(entry(letter), index, room); }
    std::string shown(double room = kWide) const { return text(order.shown(room)); }
    std::string kept() const
    {
        QString letters;
        for (const KeptOrder::Record &record : order.kept().records())
            letters += record.slot ? record.slot->program : u"|"_s;
        return letters.toStdString();
    }

    BarOrder order;

private:
    static std::string text(const std::vector<BarEntryPointer> &entries)
    {
        QString letters;
        for (const auto &entry : entries)
            letters += entry->identifier;
        return letters.toStdString();
    }
};

} // namespace

TEST(BarOrder, PutsNewcomersRightOfTheOwnItemAndListedOnesAtTheLeftEnd)
{
    const std::pair<QString, const char *> cases[] = {
        {u"P|abc"_s, "Pabc|"}, {u"P|AaBb"_s, "Pab|AB"},
        {u"PAaB"_s, "PAaB"},   {u"PAab|"_s, "Pab|A"}, // our own item comes last, next to the pinned ones
        {u"aP|"_s, "Pa|"},
    };
    for (const auto &[letters, shown] : cases)
        EXPECT_EQ(Bar(letters).shown(), shown) << qPrintable(letters);
}

TEST(BarOrder, BringsWhoComesBackToWhereItStood)
{
    Bar bar(u"P|Aabc"_s);
    EXPECT_TRUE(bar.drop(u'b', 4)); // left of our own item
    EXPECT_EQ(bar.shown(), "Pac|bA");
    for (const QChar letter : u"bca"_s)
        bar.remove(letter);
    EXPECT_EQ(bar.shown(), "P|A");
    for (const QChar letter : u"cbda"_s)
        bar.add(letter);
    EXPECT_EQ(bar.shown(), "Pacd|bA");
}

TEST(BarOrder, ShowsTheOwnItemWhereverRoomRunsOut)
{
    struct Case {
        QString letters;
        double room;
        const char *shown;
    };
    for (const Case &each : {
             Case{u"P|abcd"_s, 60, "Pabcd|"}, Case{u"P|abcd"_s, 59, "Pabc|d"}, Case{u"P|abcd"_s, 30, "Pa|bcd"},
             Case{u"P|abcd"_s, 20, "P|abcd"}, Case{u"P|abcd"_s, 19, "Pabcd|"}, // it would not fit even then
             Case{u"P|ABCD"_s, 30, "P|ABCD"}, Case{u"PABC|"_s, 30, "P|ABC"}, Case{u"Pa|"_s, -5, "Pa|"}, // no bar
             Case{u"Pabc"_s, 20, "Pabc"}, // no own item
         })
        EXPECT_EQ(Bar(each.letters).shown(each.room), each.shown) << qPrintable(each.letters) << each.room;

    Bar mixed(u"P|ABab"_s); // "Pab|AB"
    mixed.order.placeOwn(mixed.entry(u'|'), 8 + 10 + 20);
    EXPECT_EQ(mixed.shown(), "PABab|") << "left of the listed ones that fill those points, with what stands around it";
    EXPECT_EQ(mixed.shown(50), "PABa|b");
    EXPECT_EQ(mixed.shown(30), "PABab|") << "listed ones do not make way";
}

TEST(BarOrder, DropsAmongWhatIsShown)
{
    struct Case {
        const char *name;
        QChar dropped;
        std::size_t index;
        bool changes;
        const char *shown, *roomy, *kept;
    };
    // Initially "Pabc|def": there is no room for d and e, and f is tucked away.
    for (const Case &each : {
             Case{"tucked away, what made way comes back", u'b', 4, true, "Pacd|ebf", "Pacde|bf", "acde|bf"},
             Case{"tucked away at the left end", u'b', 7, true, "Pacd|efb", "Pacde|fb", "acde|fb"},
             Case{"shown, another makes way", u'd', 4, true, "Pabd|cef", "Pabdce|f", "abdce|f"},
             Case{"shown where it is wanted", u'e', 1, true, "Peab|cdf", "Peabcd|f", "eabcd|f"},
             Case{"no longer tucked away", u'f', 4, true, "Pabf|cde", "Pabfcde|", "abfcde|"},
             Case{"where it is", u'd', 5, false, "Pabc|def", "Pabcde|f", "abcde|f"},
             Case{"nothing gets right of a pinned one", u'c', 0, true, "Pcab|def", "Pcabde|f", "cabde|f"},
             Case{"nor does that move", u'P', 3, false, "Pabc|def", "Pabcde|f", "abcde|f"},
             Case{"our own one tucks away what is left of it", u'|', 2, true, "Pa|bcdef", "Pa|bcdef", "a|bcdef"},
             Case{"our own one where it would not show", u'|', 5, false, "Pabc|def", "Pabcde|f", "abcde|f"},
         }) {
        constexpr double room = 50;
        Bar bar(u"P|abcdef"_s);
        bar.drop(u'f', 7);
        EXPECT_EQ(bar.drop(each.dropped, each.index, room), each.changes) << each.name;
        EXPECT_EQ(bar.shown(room), each.shown) << each.name;
        EXPECT_EQ(bar.shown(), each.roomy) << each.name;
        EXPECT_EQ(bar.kept(), each.kept) << each.name;
    }
}

TEST(BarOrder, WhatIsOffScreenTakesNoRoomAndKeepsItsPlace)
{
    Bar bar(u"P|abcd"_s);
    bar.entry(u'b')->isAway = true;
    EXPECT_EQ(bar.shown(50), "Pabcd|");
    EXPECT_EQ(bar.shown(40), "Pabc|d");
    EXPECT_EQ(bar.shown(20), "Pb|acd");
    EXPECT_TRUE(bar.drop(u'd', 1, 40));
    EXPECT_EQ(bar.shown(40), "Pdab|c");
    bar.entry(u'b')->isAway = false;
    EXPECT_EQ(bar.shown(), "Pdabc|");
    EXPECT_TRUE(Bar(u"|ab"_s).drop(u'a', 2, 15)) << "no room for any";
}

} // namespace brimshade::desktop
