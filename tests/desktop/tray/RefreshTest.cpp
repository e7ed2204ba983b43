#include "desktop/tray/Refresh.h"
#include "desktop/time/VirtualDispatch.h"
#include "support/Test.h"

namespace brimshade::desktop::tray {

struct Reader {
    explicit Reader(VirtualDispatch &dispatch)
        : refresh(dispatch,
                  [this, &dispatch] {
                      read.push_back(dispatch.now() - begin);
                      refresh.finished();
                  }),
          begin(dispatch.now())
    {
    }

    Refresh refresh;
    const double begin;
    std::vector<double> read; // seconds since the start
};

TEST(Refresh, AChangeIsReadAtOnceAndWhatChangesAllTheTimeTogether)
{
    using testing::DoubleNear;
    using testing::ElementsAre;
    constexpr double exact = 1e-9;
    VirtualDispatch dispatch;
    Reader one(dispatch), other(dispatch);
    one.refresh.request();
    dispatch.advance(0.03);
    other.refresh.request();
    dispatch.advance(0.03);
    one.refresh.request();
    dispatch.advance(0.03);
    other.refresh.request();
    dispatch.advance(0.02);
    EXPECT_THAT(one.read, ElementsAre(DoubleNear(0.01, exact), DoubleNear(0.1, exact)));
    EXPECT_THAT(other.read, ElementsAre(DoubleNear(0.04, exact), DoubleNear(0.1, exact)));
    dispatch.advance(1.02);
    one.refresh.request(); // after a rest
    dispatch.advance(0.01);
    EXPECT_NEAR(one.read.back(), 1.14, exact);
}

TEST(Refresh, AChangeDuringAReadIsReadWhenThatHasEnded)
{
    const std::function<void(Refresh &)> asks[] = {[](Refresh &refresh) { refresh.request(); },
                                                   [](Refresh &refresh) { refresh.requestNow(); }};
    const std::function<void(Refresh &)> ends[] = {[](Refresh &refresh) { refresh.finished(); },
                                                   [](Refresh &refresh) { refresh.failed(); }};
    for (const auto &ask : asks) {
        for (const auto &end : ends) {
            VirtualDispatch dispatch;
            int reads = 0;
            Refresh refresh(dispatch, [&] { ++reads; });
            refresh.requestNow();
            ask(refresh);
            ask(refresh);
            dispatch.advance(10);
            EXPECT_EQ(reads, 1) << "one at a time";
            end(refresh);
            dispatch.advance(0.1);
            EXPECT_EQ(reads, 2);
            refresh.finished();
            dispatch.advance(10);
            EXPECT_EQ(reads, 2);
        }
    }
}

} // namespace brimshade::desktop::tray
