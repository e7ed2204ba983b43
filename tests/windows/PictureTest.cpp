#include "Context.h"

#include <QDir>
#include <gtest/gtest.h>

namespace brimshade::windows {
namespace {

using namespace Qt::StringLiterals;

// For people to look at: build/<name>/pictures/windows.
class Pictures : public testing::TestWithParam<const char *> {
protected:
    const Language language{QLocale(QString::fromLatin1(GetParam()))};
    Context context;

    void keep(const QString &name)
    {
        const QString folder = u"pictures/windows/"_s + QString::fromLatin1(GetParam());
        QDir().mkpath(folder);
        EXPECT_TRUE(context.scene().picture().save(folder + u"/"_s + name + u".png"_s));
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, Pictures, testing::Values("en", "de"));

TEST_P(Pictures, Setup)
{
    context.model.setTrusted(false);
    for (const double scale : {1.0, 2.0}) {
        const QString at = u"@%1x"_s.arg(scale);
        context.setExtras(someExtras());
        context.showSetup(scale).advance(1800);
        for (int step = 0; step < 5; ++step) {
            context.goTo(step);
            keep(u"setup-%1%2"_s.arg(step).arg(at));
        }
        context.goTo(2);
        context.flow.toggle(u"relay"_s);
        context.goTo(4);
        keep(u"setup-4-pending"_s + at);
        context.flow.toggle(u"relay"_s);
        context.model.setTrusted(true);
        context.goTo(1);
        keep(u"setup-1-granted"_s + at);
        context.model.setTrusted(false);
        context.setExtras({});
        context.goTo(2);
        keep(u"setup-2-empty"_s + at);
        context.goTo(0);
    }
}

TEST_P(Pictures, Settings)
{
    for (const double scale : {1.0, 2.0}) {
        const QString at = u"@%1x"_s.arg(scale);
        context.setExtras(someExtras());
        context.showSettings(scale);
        keep(u"settings-top"_s + at);
        context.model.setMovingID(u"relay"_s);
        context.model.setMessage(
            u"Relay: macOS didn't accept the move. Try again, or Cmd-drag it across the divider."_s);
        context.scene().advance(500);
        keep(u"settings-message"_s + at);
        context.model.setMovingID({});
        context.click(u"shortcutPicker"_s);
        keep(u"settings-picker"_s + at);
        context.key(Qt::Key_Escape);
        context.model.setMessage({});
        for (int i = 0; i < 3; ++i)
            context.key(Qt::Key_Tab);
        keep(u"settings-bottom"_s + at);
        context.setExtras({});
        context.scene().advance(500);
        keep(u"settings-empty"_s + at);
    }
}

} // namespace
} // namespace brimshade::windows
