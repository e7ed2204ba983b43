#include "desktop/core/KeptOrderFormat.h"
#include "support/Test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace brimshade::desktop {

namespace {

const QDate kToday(2026, 11, 24);

KeptOrder::Today today(QDate day = kToday)
{
    return [day] { return day; };
}

// "relay/main#1": the second item "main" of the program "relay".
KeptItem parse(const QString &text)
{
    const QString name = text.section(u'#', 0, 0);
    return {name.section(u'/', 0, 0), name.section(u'/', 1), text.section(u'#', 1).toInt()};
}

KeptOrder::Slot slotOf(const QString &text)
{
    return text == u"|" ? KeptOrder::Slot() : parse(text);
}

QString shown(const KeptOrder::Slot &slot)
{
    if (!slot)
        return u"|"_s;
    QString text = slot->program;
    if (!slot->id.isEmpty())
        text += u'/' + slot->id;
    return slot->ordinal == 0 ? text : text + u'#' + QString::number(slot->ordinal);
}

// "a (b) | c": right to left, absent items in brackets, our own one as a bar.
KeptOrder orderOf(const QString &text)
{
    KeptOrder order(today());
    QStringList present;
    for (QString word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (word.startsWith(u'('))
            word = word.mid(1).chopped(1);
        else if (word != u"|")
            present.append(word);
        order.append(slotOf(word), kToday);
    }
    for (const QString &word : present)
        order.arrive(parse(word));
    return order;
}

std::string text(const KeptOrder &order)
{
    QStringList words;
    for (const KeptOrder::Record &record : order.records())
        words.append(record.isPresent ? shown(record.slot) : u'(' + shown(record.slot) + u')');
    return words.join(u' ').toStdString();
}

} // namespace

TEST(KeptOrder, WhoeverComesBackStandsWhereItStoodAndANewOneRightOfTheOwnItem)
{
    struct Case {
        QString before, arrives, leaves;
        const char *after;
    };
    for (const Case &each : {
             Case{u"|"_s, u"a"_s, {}, "a |"},
             Case{u"a |"_s, u"b"_s, {}, "a b |"},
             Case{u"a (b) | c"_s, u"b"_s, {}, "a b | c"},
             Case{u"a | (b) c"_s, u"b"_s, {}, "a | b c"},
             Case{u"a | (b) c"_s, u"d"_s, {}, "a d | (b) c"},
             Case{u"| a/x"_s, u"a/y"_s, {}, "a/y | a/x"},
             Case{u"| a"_s, u"a"_s, {}, "a#1 | a"}, // a second instance is another item
             Case{u"(a) | (a#1)"_s, u"a"_s, {}, "a | (a#1)"},
             Case{u"a | (a#1)"_s, u"a"_s, {}, "a | a#1"},
             Case{u"a | b"_s, {}, u"b"_s, "a | (b)"},
             Case{u"a a#1 |"_s, {}, u"a"_s, "(a) a#1 |"},
             Case{u"a |"_s, {}, u"b"_s, "a |"},
         }) {
        KeptOrder order = orderOf(each.before);
        if (!each.arrives.isEmpty())
            order.arrive(parse(each.arrives));
        if (!each.leaves.isEmpty())
            order.leave(parse(each.leaves));
        EXPECT_EQ(text(order), each.after) << qPrintable(each.before);
    }
}

TEST(KeptOrder, AMovedItemPassesNoMoreAbsentOnesThanItMust)
{
    struct Case {
        QString before, moved, present;
        const char *after;
    };
    for (const Case &each : {
             Case{u"a (x) b | c"_s, u"a"_s, u"b | a c"_s, "(x) b | a c"},
             Case{u"a (x) b | c"_s, u"b"_s, u"b a | c"_s, "b a (x) | c"},
             Case{u"a (x) b |"_s, u"a"_s, u"b a |"_s, "(x) b a |"},
             Case{u"a (x) b | c"_s, u"|"_s, u"a | b c"_s, "a (x) | b c"}, // what was shown stays shown
             Case{u"a | b (x) c"_s, u"|"_s, u"a b | c"_s, "a b | (x) c"}, // what was tucked away stays tucked away
             Case{u"a | (x) b"_s, u"|"_s, u"a b |"_s, "a (x) b |"}, // unless the moved item passes it
             Case{u"(x) a | b (y)"_s, u"b"_s, u"b a |"_s, "(x) b a | (y)"},
             Case{u"(x) a | b (y)"_s, u"a"_s, u"| b a"_s, "(x) | b a (y)"},
             Case{u"a | b"_s, u"c"_s, u"a c | b"_s, "a | b"},
         }) {
        KeptOrder order = orderOf(each.before);
        std::vector<KeptOrder::Slot> present;
        for (const QString &word : each.present.split(u' '))
            present.push_back(slotOf(word));
        order.move(slotOf(each.moved), present);
        EXPECT_EQ(text(order), each.after) << qPrintable(each.before + u", "_s + each.moved);
    }
}

TEST(KeptOrder, AnItemThatTurnsOutToBeAnotherGoesWhereThatOneStoodElseStays)
{
    struct Case {
        QString before, item, who;
        const char *after;
    };
    for (const Case &each : {
             Case{u"a b |"_s, u"a"_s, u"a/main"_s, "a/main b |"},
             Case{u"a b | (a/main)"_s, u"a"_s, u"a/main"_s, "b | a/main"},
             Case{u"a b | a/main"_s, u"a"_s, u"a/main"_s, "a/main#1 b | a/main"},
             Case{u"b | b#1"_s, u"b#1"_s, u"b"_s, "b | b#1"},
         }) {
        KeptOrder order = orderOf(each.before);
        order.rename(parse(each.item), parse(each.who));
        EXPECT_EQ(text(order), each.after) << qPrintable(each.before);
    }
}

TEST(KeptOrder, TakesInWhoCameBeforeTheFileWasRead)
{
    KeptOrder order = orderOf(u"new b a |"_s);
    order.restore(orderOf(u"(a) (c) | (b)"_s));
    EXPECT_EQ(text(order), "a (c) new | b");
}

TEST(KeptOrder, ForgetsWhoWasNotSeenForNinetyDaysAndTheOldestBeyondTheMost)
{
    KeptOrder order(today());
    order.append(parse(u"old"_s), kToday.addDays(-91));
    order.append(parse(u"kept"_s), kToday.addDays(-90));
    order.append(parse(u"back"_s), kToday.addDays(-91));
    order.append(parse(u"ahead"_s), kToday.addDays(5)); // from a clock that was wrong
    order.arrive(parse(u"back"_s));
    EXPECT_EQ(text(order), "| (kept) back (ahead)");
    order.leave(parse(u"back"_s));
    order.arrive(parse(u"ahead"_s));
    EXPECT_EQ(order.lastSeen(order.records()[2]), kToday);
    EXPECT_EQ(order.lastSeen(order.records()[3]), kToday.addDays(5));

    for (std::size_t i = 0; i < KeptOrder::kMost; ++i)
        order.leave(order.arrive(parse(u"flood%1"_s.arg(i))));
    EXPECT_EQ(order.records().size(), KeptOrder::kMost + 1);
    EXPECT_TRUE(text(order).ends_with("| (back) ahead")) << "the oldest went first";
}

TEST(KeptOrder, IsReadAsItWasWritten)
{
    const KeptOrder order = orderOf(u"a/one (a/one#1) b/zwei | (c) d"_s);
    const QByteArray json = writeKeptOrder(order);
    const auto read = readKeptOrder(json, today());
    ASSERT_TRUE(read);
    EXPECT_EQ(text(*read), "(a/one) (a/one#1) (b/zwei) | (c) (d)");
    EXPECT_EQ(writeKeptOrder(*read), json);
    EXPECT_EQ(read->records().front().seen, kToday);

    KeptOrder cut(today()); // cut in the middle of a character of two units
    const KeptItem item = cut.arrive({QString(KeptOrder::kLongestText - 1, u'x') + u"🙂"_s, {}});
    const auto again = readKeptOrder(writeKeptOrder(cut), today());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->records().front().slot, item);
}

TEST(KeptOrder, RefusesWhatItWouldNotHaveWritten)
{
    const auto file = [](const QByteArray &right, const QByteArray &version = "1") {
        return "{\"version\": " + version + ", \"rightOfBrimshade\": " + right + ", \"leftOfBrimshade\": []}";
    };
    const auto item = [](const QByteArray &more) { return "[{\"program\": \"a\", \"id\": \"\"" + more + "}]"; };
    const QByteArray seen = ", \"seen\": \"2026-11-24\"";
    const QByteArray texts = "\", \"id\": \"\"" + seen + "}]";
    const QByteArray longest(KeptOrder::kLongestText, 'x');
    QByteArray many = "[";
    for (std::size_t i = 0; i <= KeptOrder::kMost; ++i)
        many += "{\"program\": \"" + QByteArray::number(qulonglong(i)) + "\", \"id\": \"\"" + seen + "},";
    many.back() = ']';

    const std::pair<QByteArray, std::optional<Verdict>> cases[] = {
        {file("[]"), {}},
        {file(item(seen)), {}},
        {file(item(seen + ", \"ordinal\": 3, \"more\": null")), {}},
        {file("[{\"program\": \"" + longest + texts), {}},
        {file("[{\"program\": \"x" + longest + texts), Verdict::damaged},
        {file(item("")), Verdict::damaged},
        {file(item(", \"seen\": \"yesterday\"")), Verdict::damaged},
        {file(item(seen + ", \"ordinal\": -1")), Verdict::damaged},
        {file(item(seen + ", \"ordinal\": 1e99")), Verdict::damaged},
        {file(item(seen + ", \"ordinal\": \"1\"")), Verdict::damaged},
        {file("[{\"program\": 1, \"id\": \"\"" + seen + "}]"), Verdict::damaged},
        {file("[\"a\"]"), Verdict::damaged},
        {file("{}"), Verdict::damaged},
        {file(many), Verdict::damaged},
        {file("[]").chopped(3), Verdict::damaged},
        {"", Verdict::damaged},
        {"[]", Verdict::damaged},
        {file("[]", "\"1\""), Verdict::damaged},
        {file("[]", "2"), Verdict::otherVersion},
        {"{\"version\": 0.5}", Verdict::otherVersion},
    };
    for (const auto &[json, fault] : cases) {
        const auto read = readKeptOrder(json, today());
        EXPECT_EQ(read ? std::nullopt : std::optional(read.error()), fault) << json.left(200).toStdString();
    }
}

} // namespace brimshade::desktop
