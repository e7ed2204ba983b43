#include "ActivationTokens.h"
#include "WaylandTokens.h"

#include <QGuiApplication>
#include <qpa/qplatformnativeinterface.h>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

// The id of a startup notification, in which only the time of the person's action counts, by the X server's clock.
class X11Tokens : public ActivationTokens {
public:
    void request(Give give) override
    {
        auto *native = QGuiApplication::platformNativeInterface();
        const auto time = reinterpret_cast<quintptr>(
            native->nativeResourceForScreen("appusertime", QGuiApplication::primaryScreen()));
        if (time == 0)
            return give({});
        give(u"brimshade-%1-%2_TIME%3"_s.arg(QCoreApplication::applicationPid()).arg(++m_number).arg(time));
    }

private:
    int m_number = 0;
};

} // namespace

std::unique_ptr<ActivationTokens> ActivationTokens::create()
{
    if (QGuiApplication::platformName() == "xcb"_L1)
        return std::make_unique<X11Tokens>();
    auto *native = QGuiApplication::platformNativeInterface();
    auto *display = native ? static_cast<wl_display *>(native->nativeResourceForIntegration("wl_display")) : nullptr;
    return display ? std::make_unique<WaylandTokens>(display) : nullptr;
}

} // namespace brimshade::desktop::session
