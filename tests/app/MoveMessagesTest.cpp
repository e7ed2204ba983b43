#include "app/MoveMessages.h"
#include "app/BulkMove.h"
#include "support/Test.h"

namespace brimshade::app::tests {

TEST(MoveMessages, SummaryIsInAscendingOrderOfTheMessages)
{
    EXPECT_EQ(failureSummary({{u"a"_s, u"Wi-Fi: b"_s}, {u"b"_s, u"Clock: z"_s}}),
              u"Some items didn't move. Clock: z Wi-Fi: b"_s);
    // Upper case before lower case, and by code point beyond the basic plane.
    EXPECT_EQ(
        failureSummary({{u"a"_s, u"apple"_s}, {u"b"_s, u"Zebra"_s}, {u"c"_s, u"\U0001F600"_s}, {u"d"_s, u"\uFB01"_s}}),
        u"Some items didn't move. Zebra apple \uFB01 \U0001F600"_s);
}

TEST(BulkMove, OnlyAMovableItemThatIsNotWhereItWasChosenToBeIsPending)
{
    struct Case {
        bool isHidden, canMove;
        std::optional<bool> choice;
        bool isPending;
    };
    for (const auto &[isHidden, canMove, choice, expected] :
         {Case{false, true, true, true}, Case{true, true, false, true}, Case{true, true, true, false},
          Case{false, true, {}, false}, Case{true, true, {}, false}, Case{false, false, true, false},
          Case{true, false, false, false}}) {
        menubar::MenuExtra extra;
        extra.id = u"812-0-wifi"_s;
        extra.isHidden = isHidden;
        extra.canMove = canMove;
        EXPECT_EQ(isPending(extra, choice ? ItemChoices{{extra.id, *choice}} : ItemChoices{}), expected);
    }
}

} // namespace brimshade::app::tests
