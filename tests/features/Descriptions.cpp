#include "Descriptions.h"

namespace brimshade::features {

desktop::ApplicationDescription application(int pid, const QString &name, double width)
{
    return brimshade::application(pid, name, {extra(name.toLower() + u".main"_s, width, {u"About"_s})});
}

desktop::ApplicationDescription systemAgent()
{
    auto agent = brimshade::systemAgent(
        {extra(u"com.example.menuextra.clock"_s, 132), extra(u"com.example.menuextra.controlcenter"_s, 40)});
    agent.extras->at(0).description = u"Clock"_s;
    agent.extras->at(1).description = u"Control Center"_s;
    return agent;
}

desktop::ApplicationDescription agentWithButton(const QRectF &frame)
{
    auto agent = systemAgent();
    agent.extras->push_back(button(frame));
    return agent;
}

desktop::DesktopDescription notchedDesktop(const QVariantMap &defaults)
{
    auto desktop = brimshade::notchedDesktop({systemAgent(), application(811, u"Relay"_s), application(812, u"Vault"_s),
                                              application(813, u"Quill"_s)});
    desktop.pointer = QPointF(100, 800);
    desktop.defaults = {{u"onboardingDone"_s, true}};
    desktop.defaults.insert(defaults);
    return desktop;
}

desktop::DesktopDescription dividedDesktop()
{
    return notchedDesktop({{u"dividerEnabled"_s, true}});
}

} // namespace brimshade::features
