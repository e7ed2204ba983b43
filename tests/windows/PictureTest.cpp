#include "Context.h"

#include <QDir>
#include <gtest/gtest.h>

namespace brimshade::windows {
namespace {

using namespace Qt::StringLiterals;

// For people to look at: build/<name>/pictures/windows.
void keep(Context &context, const QString &name)
{
    QDir().mkpath(u"pictures/windows"_s);
    context.scene().picture().save(u"pictures/windows/"_s + name + u".png"_s);
}

TEST(Pictures, Setup)
{
    Context context;
    context.model.setTrusted(false);
    context.setExtras(someExtras());
    for (const double scale : {1.0, 2.0}) {
        context.showSetup(scale).advance(2500);
        for (int step = 0; step < 5; ++step) {
            context.goTo(step);
            keep(context, u"setup-%1@%2x"_s.arg(step).arg(scale));
        }
        context.goTo(0);
    }
}

TEST(Pictures, Settings)
{
    Context context;
    context.setExtras(someExtras());
    for (const double scale : {1.0, 2.0}) {
        context.showSettings(scale);
        keep(context, u"settings-top@%1x"_s.arg(scale));
    }
}

} // namespace
} // namespace brimshade::windows
