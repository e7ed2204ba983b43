// Scripts of any number of lines, each run against a small desktop of its own that is never drawn.
#include "Expect.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/InputRouter.h"
#include "desktop/script/ScriptClock.h"
#include "desktop/script/ScriptHost.h"
#include "desktop/script/ScriptLine.h"
#include "desktop/script/ScriptRunner.h"
#include "desktop/services/SymbolService.h"
#include "desktop/stage/file/DesktopFile.h"
#include "desktop/stage/world/WorldCommands.h"
#include "desktop/time/VirtualDispatch.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr auto kDesktop = R"({
    "screens": [{"frame": [0, 0, 1512, 982], "menuBarHeight": 37, "notch": [664, 848]}],
    "applications": [{"pid": 100, "name": "One", "extras": [{"width": 30, "menu": ["About", "-", "Quit"]}]}]})";

// Hands without a window: what they do goes straight to the desktop.
class Hands : public desktop::ScriptHost {
public:
    explicit Hands(desktop::InputRouter &input) : m_input(input) { }

    void settle() override { }
    std::vector<View> views() const override { return {}; }
    QImage picture() override { return {}; }
    std::optional<QImage> picture(const QString &) override { return {}; }
    void movePointer(QPointF to, std::uint64_t flags) override
    {
        m_at = to;
        m_input.pointerMoved(to, flags);
    }
    void press(desktop::MouseButton button, std::uint64_t flags) override { m_input.pressed(button, flags); }
    void release(desktop::MouseButton button, std::uint64_t flags) override { m_input.released(button, flags); }
    void scroll(QPoint by, std::uint64_t) override { m_input.scrolled(m_at, by); }
    void key(const platform::Event &event) override { m_input.keyDown(event); }

private:
    desktop::InputRouter &m_input;
    QPointF m_at;
};

class Clock : public desktop::ScriptClock {
public:
    explicit Clock(desktop::VirtualDispatch &dispatch) : m_dispatch(dispatch) { }

    void settle() override { m_dispatch.runDue(); }
    void advance(double seconds) override { m_dispatch.advance(seconds); }
    double now() const override { return m_dispatch.now(); }

private:
    desktop::VirtualDispatch &m_dispatch;
};

void run(const QByteArray &script)
{
    desktop::VirtualDispatch dispatch;
    desktop::SymbolService symbols;
    desktop::Desktop desktop({.dispatch = dispatch, .symbols = symbols, .defaults = {}, .loginItems = {}},
                             *desktop::parseDesktop(kDesktop));
    Hands hands(desktop.input());
    Clock clock(dispatch);
    desktop::ScriptRunner runner(desktop, hands, clock, [] { return QJsonObject(); });
    addWorldCommands(runner, desktop);
    for (const QByteArray &line : script.split('\n')) {
        if (const auto command = desktop::parseScriptLine(line))
            fuzz::expect(runner.run(*command).contains(u"ok"_s), "an answer");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*count, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    run({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
    return 0;
}
