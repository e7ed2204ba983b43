#include "ModelContext.h"
#include "platform/HotkeyCenter.h"

#include <gtest/gtest.h>

namespace brimshade::model::tests {
namespace {

using platform::LoginItemStatus;

TEST(Settings, AreReadOnceInTheirOrder)
{
    ModelContext context;
    context.model();
    EXPECT_EQ(context.journal,
              (QStringList{u"read showVisibleItems"_s, u"read hoverToOpen"_s, u"read shortcut"_s,
                           u"read dividerEnabled"_s, u"status"_s}));
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

TEST(Settings, AreWrittenThroughOnEveryAssignment)
{
    struct {
        std::function<void(NotchModel &)> assign;
        QStringList first, again; // a first assignment of a new value, then the same value
    } const cases[] = {
        {[](NotchModel &model) { model.setShowVisible(false); },
         {u"will"_s, u"changed"_s, u"store showVisibleItems false"_s},
         {u"will"_s, u"store showVisibleItems false"_s}},
        {[](NotchModel &model) { model.setHoverToOpen(true); },
         {u"will"_s, u"changed"_s, u"store hoverToOpen true"_s, u"settings"_s},
         {u"will"_s, u"store hoverToOpen true"_s, u"settings"_s}},
        {[](NotchModel &model) { model.setDividerEnabled(true); },
         {u"will"_s, u"changed"_s, u"store dividerEnabled true"_s, u"settings"_s},
         {u"will"_s, u"store dividerEnabled true"_s, u"settings"_s}},
        {[](NotchModel &model) { model.setShortcut(Shortcut::optionCommandN); },
         {u"will"_s, u"changed"_s, u"store shortcut optionCommandN"_s, u"settings"_s},
         {u"will"_s, u"store shortcut optionCommandN"_s, u"settings"_s}},
    };
    for (const auto &each : cases) {
        ModelContext context;
        NotchModel &model = context.model();
        const auto note = [&](const QString &what) {
            return [&journal = context.journal, what] { journal.append(what); };
        };
        QObject::connect(&model, &NotchModel::objectWillChange, note(u"will"_s));
        for (const auto changed : {&NotchModel::showVisibleChanged, &NotchModel::hoverToOpenChanged,
                                   &NotchModel::dividerEnabledChanged, &NotchModel::shortcutChanged})
            QObject::connect(&model, changed, note(u"changed"_s));
        model.onSettingsChanged = note(u"settings"_s);
        for (const QStringList &expected : {each.first, each.again}) {
            context.journal.clear();
            each.assign(model);
            EXPECT_EQ(context.journal, expected);
        }
    }
}

TEST(Settings, ReachTheNextLaunch)
{
    ModelContext context;
    context.model().setShowVisible(false);
    context.model().setHoverToOpen(true);
    context.model().setDividerEnabled(true);
    context.model().setShortcut(Shortcut::controlOptionCommandM);
    context.closeModel();
    EXPECT_FALSE(context.model().showVisible());
    EXPECT_TRUE(context.model().hoverToOpen() && context.model().dividerEnabled());
    EXPECT_EQ(context.model().shortcut(), Shortcut::controlOptionCommandM);
    context.model().setShortcut(Shortcut::none);
    EXPECT_EQ(context.defaults.stored[u"shortcut"_s], u"none"_s);
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
    struct {
        const char *what;
        LoginItemStatus status;
        bool assigned;
        std::optional<QString> failure;
        QStringList calls;
        bool field;
        QString message;
    } const cases[] = {
        {"registers", LoginItemStatus::notRegistered, true, {}, {u"register"_s}, true, {}},
        {"awaits approval", LoginItemStatus::requiresApproval, true, {}, {u"register"_s}, true, {}},
        {"is on already", LoginItemStatus::enabled, true, {}, {}, true, {}},
        {"unregisters", LoginItemStatus::enabled, false, {}, {u"unregister"_s}, false, {}},
        {"is off already", LoginItemStatus::notFound, false, {}, {}, false, {}},
        {"cannot register", LoginItemStatus::notRegistered, true, u"not today"_s, {u"register"_s}, false, failed},
        {"cannot unregister", LoginItemStatus::enabled, false, u"not today"_s, {u"unregister"_s}, true, failed},
    };
    for (const auto &each : cases) {
        ModelContext context;
        context.loginItems.now = each.status;
        context.loginItems.failure = each.failure;
        NotchModel &model = context.model();
        EXPECT_EQ(model.launchAtLogin(), each.status == LoginItemStatus::enabled) << each.what;
        context.journal.clear();
        model.onSettingsChanged = [&] { ADD_FAILURE() << each.what; };
        model.setLaunchAtLogin(each.assigned);
        context.journal.removeAll(u"status"_s);
        EXPECT_EQ(context.journal, each.calls) << each.what;
        EXPECT_EQ(model.launchAtLogin(), each.field) << each.what;
        EXPECT_EQ(model.message(), each.message) << each.what;
    }
}

TEST(Shortcuts, HaveTheirKeysTitlesAndStoredNames)
{
    struct {
        Shortcut shortcut;
        QString raw, title;
        std::uint32_t keyCode, modifiers;
    } const cases[] = {
        {Shortcut::none, u"none"_s, u"None"_s, 0, 0},
        {Shortcut::optionCommandN, u"optionCommandN"_s, u"⌥⌘N"_s, 45, 0x0900},
        {Shortcut::controlOptionSpace, u"controlOptionSpace"_s, u"⌃⌥Space"_s, 49, 0x1800},
        {Shortcut::controlOptionCommandM, u"controlOptionCommandM"_s, u"⌃⌥⌘M"_s, 46, 0x1900},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(rawValue(each.shortcut), each.raw);
        EXPECT_EQ(shortcutFromRawValue(each.raw), each.shortcut);
        EXPECT_EQ(displayTitle(each.shortcut), each.title);
        const auto keys = keyCombination(each.shortcut);
        EXPECT_EQ(keys.has_value(), each.keyCode != 0);
        EXPECT_EQ(keys ? keys->keyCode : 0, each.keyCode);
        EXPECT_EQ(keys ? keys->modifiers : 0, each.modifiers);
    }
}

} // namespace
} // namespace brimshade::model::tests
