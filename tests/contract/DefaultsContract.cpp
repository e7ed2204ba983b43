#include "Driver.h"

using namespace brimshade::platform;

namespace brimshade::contract {

class DefaultsContract : public Contract { };

TEST_F(DefaultsContract, TellsTypesApartAndWritesAreVisibleAtOnce)
{
    UserDefaults &defaults = platform.userDefaults;
    EXPECT_FALSE(defaults.objectForKey(u"none"_s).isValid());
    EXPECT_FALSE(defaults.boolForKey(u"none"_s));
    EXPECT_EQ(defaults.stringForKey(u"none"_s), QString());

    defaults.setBool(false, u"flag"_s);
    EXPECT_EQ(defaults.objectForKey(u"flag"_s).typeId(), QMetaType::Bool) << "false is stored, not absent";
    defaults.setBool(true, u"flag"_s);
    EXPECT_TRUE(defaults.boolForKey(u"flag"_s));
    EXPECT_EQ(defaults.stringForKey(u"flag"_s), QString()) << "a Bool is no string";
    defaults.setInteger(5, u"place"_s);
    EXPECT_EQ(defaults.objectForKey(u"place"_s).typeId(), QMetaType::LongLong);
    EXPECT_EQ(defaults.objectForKey(u"place"_s).toLongLong(), 5);
    defaults.setObject(u"optionCommandN"_s, u"shortcut"_s);
    EXPECT_EQ(defaults.stringForKey(u"shortcut"_s), u"optionCommandN"_s);
    EXPECT_FALSE(defaults.boolForKey(u"shortcut"_s)) << "the text means neither yes nor no";
    defaults.setObject(u"text"_s, u"flag"_s);
    EXPECT_EQ(defaults.objectForKey(u"flag"_s).typeId(), QMetaType::QString) << "the latest value's type";
}

TEST_F(DefaultsContract, KeepsListsOfMapsAsTheyWere)
{
    const QVariantList list{QVariantMap{{u"item"_s, u"clip"_s}, {u"keyCode"_s, qlonglong(40)}},
                            QVariantMap{{u"item"_s, u"line\nbreak"_s}}};
    platform.userDefaults.setArray(list, u"list"_s);
    EXPECT_EQ(platform.userDefaults.objectForKey(u"list"_s).toList(), list);
    EXPECT_EQ(platform.userDefaults.stringForKey(u"list"_s), QString());
    EXPECT_FALSE(platform.userDefaults.boolForKey(u"list"_s));
    platform.userDefaults.setArray({}, u"list"_s);
    EXPECT_EQ(platform.userDefaults.objectForKey(u"list"_s).toList(), QVariantList());
}

TEST_F(DefaultsContract, ObserversHearOnlyWhatTheyAskedForInOrder)
{
    // Only the system posts notifications, so a new arrangement of screens serves to show the order.
    std::string order;
    const auto name = QLatin1StringView(kNSApplicationDidChangeScreenParametersNotification);
    platform.notificationCenter.addObserver(name, nullptr, [&] { order += 'a'; });
    platform.notificationCenter.addObserver(name, &order, [&] { order += 'x'; });
    platform.notificationCenter.addObserver(name, nullptr, [&] { order += 'b'; });
    platform.notificationCenter.addObserver(u"SomethingElse"_s, nullptr, [&] { order += 'y'; });
    driver->changeScreens();
    driver->runDue();
    EXPECT_EQ(order, "ab");
}

} // namespace brimshade::contract
