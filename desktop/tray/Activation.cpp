#include "Activation.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr double kTokenSeconds = 0.5;

}

Activation::Activation(const QDBusConnection &bus, const BusAddress &item, const Surroundings &surroundings,
                       platform::Dispatch &dispatch)
    : m_bus(bus), m_item(item), m_surroundings(surroundings), m_dispatch(dispatch)
{
}

void Activation::provide(platform::Work ask)
{
    if (!m_surroundings.requestToken) {
        ask();
        return;
    }
    const auto isDone = std::make_shared<bool>(false);
    const auto go = m_lifetime.guard([this, isDone, ask = std::move(ask)](const QString &token) {
        if (std::exchange(*isDone, true))
            return;
        if (!token.isEmpty())
            notify(m_bus, m_item, u"ProvideXdgActivationToken"_s, {token});
        ask();
    });
    m_dispatch.mainAfter(kTokenSeconds, [go] { go(QString()); });
    m_surroundings.requestToken(go);
}

} // namespace brimshade::desktop::tray
