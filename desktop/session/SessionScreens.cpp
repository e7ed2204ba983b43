#include "SessionScreens.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

namespace brimshade::desktop::session {

namespace {

// While there is no screen at all, the toolkit has a placeholder without a name.
bool isReal(const QScreen &screen)
{
    return !screen.name().isEmpty() && !screen.geometry().isEmpty();
}

} // namespace

SessionScreens::SessionScreens(const ScreenChoice &choice) : m_choice(choice), m_soon(std::make_unique<QTimer>())
{
    m_soon->setSingleShot(true);
    m_soon->setInterval(0);
    connect(m_soon.get(), &QTimer::timeout, this, [this] {
        arrange();
        Q_EMIT changed();
    });
    for (QScreen *screen : QGuiApplication::screens())
        watch(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        m_soon->start();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, [this](QScreen *screen) {
        std::erase(m_screens, screen); // it is about to be destroyed
        m_soon->start();
    });
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, [this] { m_soon->start(); });
    arrange();
}

SessionScreens::~SessionScreens() = default;

void SessionScreens::choose(const ScreenChoice &choice)
{
    m_choice = choice;
    m_soon->start();
}

void SessionScreens::watch(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, m_soon.get(), qOverload<>(&QTimer::start));
}

void SessionScreens::arrange()
{
    std::vector<QScreen *> present;
    std::vector<ScreenFacts> facts;
    for (QScreen *screen : QGuiApplication::screens()) {
        if (!isReal(*screen))
            continue;
        present.push_back(screen);
        facts.push_back({screen->name(), screen->geometry()});
    }
    m_arranged = arrangeScreens(facts, m_choice);
    m_screens.clear();
    m_screens.reserve(m_arranged.size());
    for (const ArrangedScreen &each : m_arranged)
        m_screens.push_back(present[each.index]);
}

std::vector<ScreenDescription> SessionScreens::descriptions() const
{
    std::vector<ScreenDescription> descriptions;
    descriptions.reserve(m_arranged.size());
    for (const ArrangedScreen &each : m_arranged)
        descriptions.push_back(each.description);
    return descriptions;
}

QScreen *SessionScreens::barScreen() const
{
    return m_screens.empty() ? nullptr : m_screens.front();
}

QScreen *SessionScreens::screenAt(QPointF display) const
{
    for (QScreen *screen : m_screens) {
        if (QRectF(originOf(screen), screen->geometry().size()).contains(display))
            return screen;
    }
    return barScreen();
}

QPointF SessionScreens::originOf(const QScreen *screen) const
{
    const QScreen *bar = barScreen();
    return screen && bar ? screen->geometry().topLeft() - bar->geometry().topLeft() : QPoint();
}

} // namespace brimshade::desktop::session
