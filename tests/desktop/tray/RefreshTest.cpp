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
    std::vector<double> read; // seconds since the beginning
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

} // namespace brimshade::desktop::tray
