#include "ui/SpringValue.h"
#include "ManualAnimationDriver.h"
#include "support/Test.h"

namespace brimshade::ui {

class SpringValueTest : public testing::Test {
protected:
    void SetUp() override { value.componentComplete(); }

    double seconds(int milliseconds)
    {
        driver.step(milliseconds);
        return value.value();
    }

    ManualAnimationDriver driver;
    SpringValue value;
};

TEST_F(SpringValueTest, FollowsTheSpringOnTheDriversClockAndThenStops)
{
    value.setResponse(0.46);
    value.setDamping(0.74);
    value.setTarget(1);
    EXPECT_EQ(value.value(), 0);
    EXPECT_NEAR(seconds(50), 1 + springAt({0.46, 0.74}, {-1, 0}, 0.05).position, 1e-9);
    EXPECT_NEAR(seconds(150), 1 + springAt({0.46, 0.74}, {-1, 0}, 0.2).position, 1e-9);
    EXPECT_TRUE(value.isRunning());
    seconds(2000);
    EXPECT_EQ(value.value(), 1);
    EXPECT_FALSE(value.isRunning()) << "nothing may tick once it rests";
}

TEST_F(SpringValueTest, MovesInNoFinerStepsThanItsPrecisionAndArrivesExactly)
{
    value.setProperty("precision", 0.05);
    std::vector<double> values{value.value()};
    int clampedChanges = 0;
    QObject::connect(&value, &SpringValue::valueChanged, [&] { values.push_back(value.value()); });
    QObject::connect(&value, &SpringValue::clampedChanged, [&] { ++clampedChanges; });
    value.setDamping(0.5);
    value.setTarget(1);
    for (int milliseconds = 0; milliseconds < 5000; milliseconds += 4)
        driver.step(4);
    EXPECT_EQ(values.back(), 1);
    for (std::size_t i = 1; i + 1 < values.size(); ++i)
        EXPECT_GE(std::abs(values[i] - values[i - 1]), 0.05) << "step " << i;
    EXPECT_LT(clampedChanges, int(values.size()) - 3) << "light does not change while the spring overshoots";
}

TEST_F(SpringValueTest, KeepsPositionAndVelocityWhenTheTargetChanges)
{
    value.setResponse(0.5);
    value.setDamping(0.7);
    value.setTarget(1);
    seconds(100);
    const SpringState before = springAt({0.5, 0.7}, {-1, 0}, 0.1);
    value.setResponse(0.32);
    value.setDamping(0.92);
    value.setTarget(0);
    EXPECT_NEAR(value.value(), 1 + before.position, 1e-9);
    const SpringState start{1 + before.position, before.velocity};
    EXPECT_NEAR(seconds(30), springAt({0.32, 0.92}, start, 0.03).position, 1e-9);
}

TEST_F(SpringValueTest, TakesTheParametersThatComeWithTheTargetInEitherOrder)
{
    value.setResponse(0.46);
    value.setTarget(1);
    value.setResponse(0.2); // the binding that ran last
    value.setDelay(0.1);
    EXPECT_NEAR(seconds(140), 1 + springAt({0.2, 0.8}, {-1, 0}, 0.04).position, 1e-9);
    value.setResponse(3); // no longer affects this motion
    EXPECT_NEAR(seconds(20), 1 + springAt({0.2, 0.8}, {-1, 0}, 0.06).position, 1e-9);
}

TEST_F(SpringValueTest, WhatComesIntoViewAppearsInItsPlaceWhicheverIsSaidFirst)
{
    value.setAnimated(false);
    value.setAnimated(true);
    value.setTarget(5); // in the turn in which it came into view
    EXPECT_EQ(value.value(), 5);
    QCoreApplication::processEvents();
    value.setTarget(6);
    EXPECT_EQ(value.value(), 5) << "from then on it moves";
    value.setAnimated(false);
    value.setTarget(8);
    value.setAnimated(true);
    EXPECT_EQ(value.value(), 8);
}

TEST_F(SpringValueTest, HeldItStaysAndThenGoesToWhereverTheTargetIs)
{
    value.setTarget(1);
    const double reached = seconds(60);
    value.setTarget(3);
    value.setHeld(true); // the binding that ran last
    EXPECT_EQ(seconds(500), reached);
    value.setTarget(7);
    EXPECT_EQ(seconds(500), reached);
    EXPECT_FALSE(value.isRunning());
    value.setHeld(false);
    EXPECT_EQ(value.value(), reached);
    EXPECT_EQ(seconds(5000), 7);
}

TEST(SpringValueCreation, JumpsToItsFirstTarget)
{
    SpringValue value;
    value.classBegin();
    value.setTarget(7);
    EXPECT_EQ(value.value(), 7);
    EXPECT_FALSE(value.isRunning());
}

} // namespace brimshade::ui
