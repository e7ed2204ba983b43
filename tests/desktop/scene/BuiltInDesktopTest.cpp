#include "desktop/builtin/BuiltInDesktop.h"
#include "SceneContext.h"

#include <QImageReader>

namespace brimshade::desktop {

TEST(BuiltInDesktop, HasReadablePicturesAndMenusThatSayWhatWasChosen)
{
    QStringList icons;
    for (const ApplicationDescription &application : builtInDesktop().applications) {
        if (!application.icon)
            continue;
        QImageReader reader(*application.icon);
        EXPECT_TRUE(reader.canRead()) << application.icon->toStdString();
        icons << *application.icon;
        for (const ExtraDescription &extra : application.extras.value_or(std::vector<ExtraDescription>())) {
            EXPECT_GE(extra.menu.size(), 4) << application.name->toStdString();
            EXPECT_LE(extra.menu.size(), 8) << application.name->toStdString();
        }
    }
    icons.removeDuplicates();
    EXPECT_GE(icons.size(), 12);

    SceneContext context(builtInDesktop());
    const auto items = context.desktop().menuBar().items();
    context.click(items.back().frame.center());
    ASSERT_TRUE(context.desktop().menus().choose(u"Show Calendar"_s));
    context.settle();
    const auto banners = context.findAll(u"banner"_s);
    ASSERT_EQ(banners.size(), 1);
    EXPECT_TRUE(banners.first()->property("what").toString().contains(u"Show Calendar"_s));
}

} // namespace brimshade::desktop
