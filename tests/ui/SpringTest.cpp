#include "ui/Spring.h"
#include "support/Test.h"

#include <numbers>

namespace brimshade::ui {

// The equation of motion, integrated in tiny steps, independently of the closed form.
SpringState integrated(const SpringParameters &p, SpringState s, double seconds)
{
    const double stiffness = std::pow(2 * std::numbers::pi / p.response, 2);
    const double damping = 4 * std::numbers::pi * p.dampingFraction / p.response;
    const auto slope = [&](const SpringState &at) {
        return SpringState{at.velocity, -stiffness * at.position - damping * at.velocity};
    };
    const auto moved = [](const SpringState &a, const SpringState &d, double h) {
        return SpringState{a.position + d.position * h, a.velocity + d.velocity * h};
    };
    constexpr int steps = 4000;
    const double h = seconds / steps;
    for (int i = 0; i < steps; ++i) {
        const SpringState a = slope(s);
        const SpringState b = slope(moved(s, a, h / 2));
        const SpringState c = slope(moved(s, b, h / 2));
        const SpringState d = slope(moved(s, c, h));
        s.position += h / 6 * (a.position + 2 * b.position + 2 * c.position + d.position);
        s.velocity += h / 6 * (a.velocity + 2 * b.velocity + 2 * c.velocity + d.velocity);
    }
    return s;
}

TEST(Spring, FollowsItsEquationOfMotion)
{
    const SpringParameters springs[] = {{0.46, 0.74},    {0.32, 0.92},  {0.2, 0.6}, {0.5, 1},
                                        {0.5, 1 + 1e-7}, {0.5, 1.0001}, {0.4, 1.8}, {0.35, 0.05}};
    const SpringState starts[] = {{-1, 0}, {0, 12}, {0.4, -30}, {1, 6}};
    for (const SpringParameters &spring : springs) {
        for (const SpringState &start : starts) {
            for (const double t : {0.016, 0.1, 0.37, 0.9}) {
                const SpringState expected = integrated(spring, start, t);
                const SpringState actual = springAt(spring, start, t);
                SCOPED_TRACE(testing::Message() << spring.response << '/' << spring.dampingFraction << " at " << t);
                EXPECT_NEAR(actual.position, expected.position, 1e-5);
                EXPECT_NEAR(actual.velocity, expected.velocity, 1e-4);
            }
        }
    }
}

TEST(Spring, SettledMeansThatItNeverLeavesAgain)
{
    const SpringParameters spring{0.5, 0.3};
    EXPECT_FALSE(springIsSettled(spring, {0, 1}, 1e-3)) << "passing through the target is not resting there";
    double settledAt = 0;
    while (!springIsSettled(spring, springAt(spring, {1, 0}, settledAt), 1e-3))
        settledAt += 0.001;
    for (double t = settledAt; t < settledAt + 3; t += 0.001)
        ASSERT_LT(std::abs(springAt(spring, {1, 0}, t).position), 1e-3);
}

TEST(Spring, WithoutResponseArrivesAtOnce)
{
    EXPECT_EQ(springAt({0, 0.5}, {1, 3}, 0.001), SpringState());
    EXPECT_TRUE(springIsSettled({-1, 0.5}, {1, 3}, 1e-3));
}

} // namespace brimshade::ui
