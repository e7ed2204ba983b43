#include "desktop/services/HotkeyRegistry.h"
#include "support/Test.h"

#include <set>

namespace brimshade::desktop {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr KeyCombination kFirst{45, platform::kCarbonOption | platform::kCarbonCommand};
constexpr KeyCombination kSecond{49, platform::kCarbonControl | platform::kCarbonOption};

// What a session would keep.
struct Session {
    std::set<KeyCombination> grabbed;
    std::function<void(KeyCombination)> press;
    bool refuses = false;
};

class FakeGrabber : public GlobalKeyGrabber {
public:
    explicit FakeGrabber(Session &session) : m_session(session) { }
    void setPressed(std::function<void(KeyCombination)> pressed) override { m_session.press = std::move(pressed); }
    bool grab(KeyCombination combination) override
    {
        return !m_session.refuses && m_session.grabbed.insert(combination).second;
    }
    void release(KeyCombination combination) override { m_session.grabbed.erase(combination); }

private:
    Session &m_session;
};

class HotkeyRegistryTest : public testing::Test {
protected:
    HotkeyRegistryTest()
    {
        registry.installEventHandler([this] { ++presses; });
    }
    auto add(KeyCombination c) { return registry.registerEventHotKey(c.keyCode, c.modifiers, {}); }
    bool press(KeyCombination c) { return registry.press(c.keyCode, c.modifiers); }

    HotkeyRegistry registry;
    int presses = 0;
};

TEST_F(HotkeyRegistryTest, OnlyWhatIsRegisteredIsTaken)
{
    EXPECT_FALSE(press(kFirst));
    const auto first = add(kFirst);
    ASSERT_TRUE(first && *first != 0);
    EXPECT_FALSE(add(kFirst)); // taken
    EXPECT_EQ(registry.current(), kFirst);
    EXPECT_TRUE(press(kFirst));
    EXPECT_FALSE(registry.press(kFirst.keyCode, platform::kCarbonCommand));
    EXPECT_FALSE(press(kSecond));

    const auto second = add(kSecond);
    registry.unregisterEventHotKey(*first);
    registry.unregisterEventHotKey(*first); // gone already
    EXPECT_FALSE(press(kFirst));
    EXPECT_TRUE(press(kSecond));
    EXPECT_EQ(registry.current(), kSecond);
    registry.unregisterEventHotKey(*second);
    EXPECT_EQ(registry.current(), std::nullopt);
    EXPECT_EQ(presses, 2);
}

TEST_F(HotkeyRegistryTest, TheHandlerMayReplaceItself)
{
    ASSERT_TRUE(add(kFirst));
    registry.installEventHandler([this] { registry.installEventHandler([this] { presses += 10; }); });
    EXPECT_TRUE(press(kFirst));
    EXPECT_TRUE(press(kFirst));
    EXPECT_EQ(presses, 10);
}

TEST_F(HotkeyRegistryTest, AGrabberFollowsTheRegistrations)
{
    Session session;
    const auto first = add(kFirst);
    registry.setGrabber(std::make_unique<FakeGrabber>(session));
    ASSERT_TRUE(add(kSecond));
    EXPECT_THAT(session.grabbed, ElementsAre(kFirst, kSecond));
    session.press(kFirst);
    EXPECT_EQ(presses, 1);
    registry.unregisterEventHotKey(*first);
    EXPECT_THAT(session.grabbed, ElementsAre(kSecond));
    session.press(kFirst); // was under way
    EXPECT_EQ(presses, 1);

    session.refuses = true;
    EXPECT_TRUE(add(kFirst)); // still works inside the desktop
    EXPECT_TRUE(press(kFirst));
    EXPECT_EQ(presses, 2);
}

} // namespace brimshade::desktop
