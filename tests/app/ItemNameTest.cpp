#include "app/ItemName.h"
#include "support/Test.h"

namespace brimshade::app::tests {

menubar::MenuExtra named(const QString &detail, const QString &name)
{
    menubar::MenuExtra extra;
    extra.id = extra.detail = detail;
    extra.name = name;
    return extra;
}

TEST(ItemName, MeansTheOneItemThatIsNamedSoTheClearestFirst)
{
    menubar::ExtraList extras;
    for (const auto &[detail, name] :
         {std::pair(u"KeePassXC - locked"_s, u"KeePassXC"_s), std::pair(u"Network"_s, u"nm"_s),
          std::pair(u"Network Usage"_s, u"Monitor"_s), std::pair(u"CPU"_s, u"Monitor"_s)})
        extras.push_back(named(detail, name));
    const auto meant = [&](const QString &name) {
        const auto found = itemNamed(name, extras);
        return found ? (*found)->id : found.error();
    };
    EXPECT_EQ(meant(u"keepassxc"_s), u"KeePassXC - locked"_s);
    EXPECT_EQ(meant(u"network"_s), u"Network"_s); // a whole name beats a part of another one
    EXPECT_EQ(meant(u"usage"_s), u"Network Usage"_s);
    EXPECT_EQ(meant(u"Monitor"_s), u"several items are named \"Monitor\": Network Usage (Monitor), CPU (Monitor)"_s);
    EXPECT_EQ(meant(u"wifi"_s), u"no item is named \"wifi\""_s);
    EXPECT_EQ(meant({}), u"no item is named \"\""_s);
}

} // namespace brimshade::app::tests
