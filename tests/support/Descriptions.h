#pragma once
#include "Test.h"
#include "desktop/core/DesktopDescription.h"

namespace brimshade {

// A movable item with the action AXPress, laid out by the bar; an item at a fixed place; a plain button at one.
desktop::ExtraDescription extra(const QString &identifier, double width = 30, const QStringList &menu = {});
desktop::ExtraDescription extraAt(const QString &identifier, const QRectF &frame);
desktop::ExtraDescription button(const QRectF &frame);
desktop::ExtraDescription group(std::vector<desktop::ExtraDescription> children);

// "app.relay" in /Applications/Relay.app.
desktop::ApplicationDescription application(int pid, const QString &name,
                                            std::vector<desktop::ExtraDescription> extras);
desktop::ApplicationDescription systemAgent(std::vector<desktop::ExtraDescription> extras);
desktop::ApplicationDescription hung(desktop::ApplicationDescription application);

desktop::ScreenDescription notchedScreen(double upper = 849); // 1512 × 982, bar 37, the notch from 663 to upper
desktop::ScreenDescription plainScreen(const QRectF &frame, const QString &name = u"External"_s); // bar 24
desktop::DesktopDescription notchedDesktop(std::vector<desktop::ApplicationDescription> applications);

} // namespace brimshade
