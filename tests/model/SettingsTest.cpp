#include "ModelContext.h"
#include "platform/HotkeyCenter.h"

namespace brimshade::model::tests {

using platform::LoginItemStatus;

TEST(Settings, StartFromTheirDefaults)
{
    ModelContext context;
    const NotchModel &model = context.model();
    EXPECT_TRUE(model.showVisible() && model.trusted());
    EXPECT_FALSE(model.hoverToOpen() || model.dividerEnabled() || model.launchAtLogin());
    EXPECT_EQ(model.shortcut(), Shortcut::none);
    EXPECT_EQ(model.notch(), QSizeF(200, 32));
}

TEST(Settings, FallBackToTheirDefaultsWhenIllTyped)
{
    const std::pair<QVariant, bool> visible[] = {{false, false}, {true, true}, {u"false"_s, true}, {QVariant(), true}};
    for (const auto &[stored, expected] : visible) {
        ModelContext context;
        context.defaults.stored[u"showVisibleItems"_s] = stored;
        EXPECT_EQ(context.model().showVisible(), expected) << qPrintable(stored.toString());
    }
    const std::pair<QVariant, Shortcut> shortcuts[] = {{u"controlOptionSpace"_s, Shortcut::controlOptionSpace},
                                                       {u"ControlOptionSpace"_s, Shortcut::none},
                                                       {u""_s, Shortcut::none},
                                                       {3, Shortcut::none}};
    for (const auto &[stored, expected] : shortcuts) {
        ModelContext context;
        context.defaults.stored[u"shortcut"_s] = stored;
        EXPECT_EQ(context.model().shortcut(), expected) << qPrintable(stored.toString());
        EXPECT_EQ(context.defaults.stored[u"shortcut"_s], stored);
    }
}

TEST(Settings, AreStoredAndToldOfOnEveryAssignment)
{
    const std::tuple<std::function<void(NotchModel &)>, QString, QVariant, int> cases[] = {
        {[](NotchModel &model) { model.setShowVisible(false); }, u"showVisibleItems"_s, false, 0},
        {[](NotchModel &model) { model.setHoverToOpen(true); }, u"hoverToOpen"_s, true, 1},
        {[](NotchModel &model) { model.setDividerEnabled(true); }, u"dividerEnabled"_s, true, 1},
        {[](NotchModel &model) { model.setShortcut(Shortcut::optionCommandN); }, u"shortcut"_s, u"optionCommandN"_s, 1},
    };
    for (const auto &[assign, key, value, told] : cases) {
        ModelContext context;
        NotchModel &model = context.model();
        int tellings = 0;
        model.onSettingsChanged = [&] { ++tellings; };
        for (const int times : {1, 2}) {
            context.defaults.stored.remove(key);
            assign(model);
            EXPECT_EQ(context.defaults.stored[key], value) << qPrintable(key) << times;
            EXPECT_EQ(tellings, times * told) << qPrintable(key);
        }
    }
}

TEST(Settings, StoreWhatTheFieldHoldsWhenAnObserverAssignsAgain)
{
    ModelContext context;
    NotchModel &model = context.model();
    QObject::connect(&model, &NotchModel::hoverToOpenChanged, [&] {
        if (model.hoverToOpen())
            model.setHoverToOpen(false);
    });
    model.setHoverToOpen(true);
    EXPECT_EQ(context.defaults.stored[u"hoverToOpen"_s], false);
    EXPECT_FALSE(model.hoverToOpen());
}

TEST(LaunchAtLogin, FollowsTheSystemsAnswer)
{
    const QString failed = u"Couldn't change Launch at Login: not today"_s;
    const std::tuple<const char *, LoginItemStatus, bool, std::optional<QString>, QStringList, bool, QString> cases[] =
        {
            {"registers", LoginItemStatus::notRegistered, true, {}, {u"register"_s}, true, {}},
            {"awaits approval", LoginItemStatus::requiresApproval, true, {}, {u"register"_s}, true, {}},
            {"is on already", LoginItemStatus::enabled, true, {}, {}, true, {}},
            {"unregisters", LoginItemStatus::enabled, false, {}, {u"unregister"_s}, false, {}},
            {"is off already", LoginItemStatus::notFound, false, {}, {}, false, {}},
            {"cannot register", LoginItemStatus::notRegistered, true, u"not today"_s, {u"register"_s}, false, failed},
            {"cannot unregister", LoginItemStatus::enabled, false, u"not today"_s, {u"unregister"_s}, true, failed},
        };
    for (const auto &[what, status, assigned, failure, calls, field, message] : cases) {
        ModelContext context;
        context.loginItems.now = status;
        context.loginItems.failure = failure;
        NotchModel &model = context.model();
        EXPECT_EQ(model.launchAtLogin(), status == LoginItemStatus::enabled) << what;
        model.onSettingsChanged = [&] { ADD_FAILURE() << what; };
        model.setLaunchAtLogin(assigned);
        EXPECT_EQ(context.journal, calls) << what;
        EXPECT_EQ(model.launchAtLogin(), field) << what;
        EXPECT_EQ(model.message(), message) << what;
    }
}

TEST(Shortcuts, HaveTheirKeysTitlesAndStoredNames)
{
    const std::tuple<Shortcut, QString, QString, std::uint32_t, std::uint32_t> cases[] = {
        {Shortcut::none, u"none"_s, u"None"_s, 0, 0},
        {Shortcut::optionCommandN, u"optionCommandN"_s, u"⌥⌘N"_s, 45, 0x0900},
        {Shortcut::controlOptionSpace, u"controlOptionSpace"_s, u"⌃⌥Space"_s, 49, 0x1800},
        {Shortcut::controlOptionCommandM, u"controlOptionCommandM"_s, u"⌃⌥⌘M"_s, 46, 0x1900},
    };
    for (const auto &[shortcut, raw, title, keyCode, modifiers] : cases) {
        EXPECT_EQ(rawValue(shortcut), raw);
        EXPECT_EQ(shortcutFromRawValue(raw), shortcut);
        EXPECT_EQ(displayTitle(shortcut), title);
        const auto keys = keyCombination(shortcut);
        EXPECT_EQ(keys.has_value(), keyCode != 0);
        EXPECT_EQ(keys ? keys->keyCode : 0, keyCode);
        EXPECT_EQ(keys ? keys->modifiers : 0, modifiers);
    }
}

} // namespace brimshade::model::tests
