#include "Driver.h"
#include "platform/KeyCodes.h"

using namespace brimshade::platform;

namespace brimshade::contract {

constexpr std::uint32_t kSignature = 0x42524d53;

class HotkeyContract : public Contract {
protected:
    HotkeyContract()
    {
        center.installEventHandler([this](EventHotKeyID id) { heard << u"hotkey %1"_s.arg(id.number); });
        platform.application.addLocalMonitor(kKeyDownMask, [this](const Event &event) {
            heard << u"key %1"_s.arg(event.keyCode);
            return std::optional(event);
        });
        window->makeKeyAndOrderFront();
    }
    ~HotkeyContract() override { center.installEventHandler({}); }

    std::expected<EventHotKeyRef, int> add(std::uint32_t keyCode, std::uint32_t number)
    {
        return center.registerEventHotKey(keyCode, kCarbonOption | kCarbonCommand, {kSignature, number},
                                          u"Number %1"_s.arg(number));
    }
    QStringList press(std::uint16_t keyCode, std::uint64_t flags = kOptionFlag | kCommandFlag)
    {
        heard.clear();
        driver->key(keyCode, flags);
        return heard;
    }

    HotkeyCenter &center = platform.hotkeyCenter;
    std::unique_ptr<Window> window = makeWindow(QRectF(50, 60, 300, 200));
    QStringList heard;
};

TEST_F(HotkeyContract, EachOfSeveralTellsWhichItIsBeforeAnyWindowHearsOfIt)
{
    const auto first = add(kVK_ANSI_N, 1), second = add(kVK_ANSI_K, 0x8000'0001);
    ASSERT_TRUE(first && second);
    EXPECT_NE(*first, 0u);
    EXPECT_NE(*first, *second);
    EXPECT_EQ(press(kVK_ANSI_N), QStringList(u"hotkey 1"_s));
    EXPECT_EQ(press(kVK_ANSI_K), QStringList(u"hotkey 2147483649"_s));
    EXPECT_EQ(press(kVK_ANSI_K, kOptionFlag), QStringList(u"key 40"_s)) << "other modifiers, another combination";
    center.unregisterEventHotKey(*first);
    EXPECT_EQ(press(kVK_ANSI_N), QStringList(u"key 45"_s));
    EXPECT_EQ(press(kVK_ANSI_K), QStringList(u"hotkey 2147483649"_s)) << "the other one stays";
}

TEST_F(HotkeyContract, ACombinationIsTakenOnceAndFreeAgainWhenItIsGivenBack)
{
    const auto first = add(kVK_ANSI_N, 1);
    ASSERT_TRUE(first);
    EXPECT_FALSE(add(kVK_ANSI_N, 2));
    EXPECT_EQ(press(kVK_ANSI_N), QStringList(u"hotkey 1"_s));
    center.unregisterEventHotKey(*first);
    EXPECT_TRUE(add(kVK_ANSI_N, 2));
    EXPECT_EQ(press(kVK_ANSI_N), QStringList(u"hotkey 2"_s));
}

TEST_F(HotkeyContract, OffTheirKeysGoToTheKeyWindowAndTheyCanBeRegisteredAllTheSame)
{
    ASSERT_TRUE(add(kVK_ANSI_N, 1));
    center.pushSymbolicHotKeyMode();
    center.pushSymbolicHotKeyMode();
    EXPECT_EQ(press(kVK_ANSI_N), QStringList(u"key 45"_s));
    ASSERT_TRUE(add(kVK_ANSI_K, 2));
    EXPECT_FALSE(add(kVK_ANSI_K, 3));
    center.popSymbolicHotKeyMode();
    EXPECT_EQ(press(kVK_ANSI_K), QStringList(u"key 40"_s)) << "on again once popped as often as pushed";
    center.popSymbolicHotKeyMode();
    EXPECT_EQ(press(kVK_ANSI_N), QStringList(u"hotkey 1"_s));
    EXPECT_EQ(press(kVK_ANSI_K), QStringList(u"hotkey 2"_s));
}

TEST_F(HotkeyContract, TheHandlerMayUnregisterWhatWasPressed)
{
    const auto ref = add(kVK_ANSI_N, 1);
    ASSERT_TRUE(ref);
    int presses = 0;
    center.installEventHandler([&](EventHotKeyID) {
        ++presses;
        center.unregisterEventHotKey(*ref);
    });
    press(kVK_ANSI_N);
    press(kVK_ANSI_N);
    EXPECT_EQ(presses, 1);
}

} // namespace brimshade::contract
