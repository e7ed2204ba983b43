#include "ModelContext.h"
#include "platform/HotkeyCenter.h"

namespace brimshade::model::tests {

using platform::LoginItemStatus;

TEST(Settings, AreReadOnceInTheirOrder)
{
    ModelContext context;
    context.model();
    EXPECT_EQ(context.journal,
              (QStringList{u"read showVisibleItems"_s, u"read hoverToOpen"_s, u"read shortcut"_s,
                           u"read dividerEnabled"_s, u"status"_s, u"read itemShortcuts"_s}));
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
    const std::tuple<std::function<void(NotchModel &)>, QStringList, QStringList> cases[] = {
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
    for (const auto &[assign, first, again] : cases) {
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
        for (const QStringList &expected : {first, again}) {
            context.journal.clear();
            assign(model);
            EXPECT_EQ(context.journal, expected);
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
        context.journal.clear();
        model.onSettingsChanged = [&] { ADD_FAILURE() << what; };
        model.setLaunchAtLogin(assigned);
        context.journal.removeAll(u"status"_s);
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
