#include "ui/binding/RowSteps.h"
#include "support/Test.h"

namespace brimshade::ui {

namespace {

// "-1x2 +0x3 3>0": two rows removed at 1, three inserted at 0, the fourth moved to the front.
QString written(const QString &shown, const QString &wanted)
{
    QStringList all;
    for (const RowStep &step :
         rowSteps(shown.split(u' ', Qt::SkipEmptyParts), wanted.split(u' ', Qt::SkipEmptyParts))) {
        if (step.kind == RowStep::Kind::move)
            all << u"%1>%2"_s.arg(step.from).arg(step.row);
        else
            all << u"%1%2x%3"_s.arg(QChar(step.kind == RowStep::Kind::insert ? u'+' : u'-'))
                       .arg(step.row)
                       .arg(step.count);
    }
    return all.join(u' ');
}

} // namespace

TEST(RowSteps, KeepWhatStaysAndTakeNeighboursTogether)
{
    const std::tuple<const char *, QString, QString, QString> cases[] = {
        {"nothing", u"a b c"_s, u"a b c"_s, u""_s},
        {"the first come", u""_s, u"a b c"_s, u"+0x3"_s},
        {"all go", u"a b c"_s, u""_s, u"-0x3"_s},
        {"neighbours go", u"a b c d e"_s, u"a d"_s, u"-4x1 -1x2"_s},
        {"neighbours come", u"a d"_s, u"a b c d e"_s, u"+1x2 +4x1"_s},
        {"others in the place of some", u"a b c"_s, u"a x y c"_s, u"-1x1 +1x2"_s},
        {"the last to the front", u"a b c"_s, u"c a b"_s, u"2>0"_s},
        {"a key once more", u"a b"_s, u"a b a"_s, u"+2x1"_s},
        {"a key once less", u"a b a"_s, u"a b"_s, u"-2x1"_s},
    };
    for (const auto &[what, shown, wanted, steps] : cases)
        EXPECT_EQ(written(shown, wanted), steps) << what;
}

} // namespace brimshade::ui
