#include "TrayHostContext.h"
#include "desktop/tray/BusCall.h"

#include <QRegularExpression>
#include <csignal>
#include <sys/wait.h>

namespace brimshade::desktop::tray {

// Calls with an effect that a person would see.
const QRegularExpression kEffects(u"^(Activate|ContextMenu|Event \\d+ clicked)"_s);

class PressTest : public TrayHostContext {
protected:
    PressTest() : TrayHostContext(notchedDesktop({application(11, u"Rival"_s, {extra(u"rival"_s, 30, {u"Other"_s})})}))
    {
    }
    // Waits until everything that the program has sent has come, along with what followed from it.
    void settleAll()
    {
        for (int i = 0; i < 3; ++i) {
            settle(m_bus.connection(u"program"_s), m_bus.connection(u"own"_s));
            m_dispatch.runDue();
            settle(m_bus.connection(u"own"_s), m_bus.connection(u"program"_s));
        }
    }
    // A program whose menu has to be read again, and that takes its time to send it.
    std::unique_ptr<FakeProgram> startSlow()
    {
        auto program = start(u"program"_s, u"Slow"_s);
        waitUntil([&] { return program->calls().contains(u"GetLayout 0"_s) && titles() == QStringList{u"Slow"_s}; });
        program->signalLayout(0);
        settleAll();
        program->heldMethods = {u"AboutToShow"_s};
        return program;
    }
    QStringList messages() { return m_desktop.inspection().takeMessages(); }
};

TEST_F(PressTest, AMenuThatComesLateReplacesNothingThatWasOpenedSince)
{
    const auto slow = startSlow();
    const auto other = start(u"other"_s, u"Other program"_s);
    waitUntil([&] { return titles().size() == 2 && other->calls().contains(u"GetLayout 0"_s); });
    settle(m_bus.connection(u"own"_s), m_bus.connection(u"other"_s));
    const std::tuple<const char *, std::function<void()>, QStringList> cases[] = {
        {"a described item", [&] { click(u"rival"_s); }, {u"Other"_s}},
        {"another tray item", [&] { press(1); }, {u"Open"_s, u"Quit"_s}},
        {"elsewhere",
         [&] {
             m_desktop.input().pointerMoved({300, 500}, 0), m_desktop.input().pressed(MouseButton::left, 0);
         },
         {}},
        {"a key",
         [&] {
             m_desktop.input().keyDown({platform::keyDown, 0, 0, u"a"_s});
         },
         {}},
        {"a key in a menu",
         [&] {
             m_desktop.input().takeHotkey({platform::keyDown, 0, 0, u"a"_s});
         },
         {}},
    };
    slow->menu.children = {labelled(1, u"Late"_s)};
    for (const auto &[name, act, shown] : cases) {
        SCOPED_TRACE(name);
        slow->heldMethods = {u"AboutToShow"_s};
        slow->takeEvents();
        press(0);
        waitUntil([&] { return slow->calls().contains(u"AboutToShow 0"_s); });
        act();
        waitUntil([&] { return m_desktop.menus().titles() == shown; });
        slow->answerHeld();
        settleAll();
        EXPECT_EQ(m_desktop.menus().titles(), shown);
        EXPECT_EQ(slow->calls().filter(kEffects), QStringList());
        m_desktop.menus().dismiss();
    }
}

TEST_F(PressTest, LapsesAfterTwoSecondsWithoutAnAnswer)
{
    const auto slow = startSlow();
    press(0);
    waitUntil([&] { return slow->calls().contains(u"AboutToShow 0"_s); });
    settleAll(); // it is alive
    m_dispatch.advance(2);
    slow->answerHeld();
    settleAll();
    EXPECT_FALSE(isMenuOpen());
    EXPECT_EQ(slow->calls().filter(kEffects), QStringList());
    EXPECT_EQ(messages(), QStringList());

    press(0);
    waitUntil([&] { return isMenuOpen(); });
}

TEST_F(PressTest, AProgramThatDrawsItsMenuMayAnswerWhenThatCloses)
{
    const auto program = start(u"program"_s, u"Drawing"_s);
    program->properties.remove(u"Menu"_s);
    program->properties[u"ItemIsMenu"_s] = true;
    program->heldMethods = {u"ContextMenu"_s};
    waitForTitles({u"Drawing"_s});
    press(0);
    waitUntil([&] { return !program->calls().filter(kEffects).isEmpty(); });
    m_dispatch.advance(60);
    program->answerHeld();
    settleAll();
    EXPECT_EQ(messages(), QStringList());
    EXPECT_EQ(program->calls().filter(kEffects).size(), 1);
}

class StoppedProgramTest : public PressTest {
protected:
    StoppedProgramTest()
    {
        m_process.start(QCoreApplication::applicationDirPath() + u"/desktop_tray_program"_s, {m_bus.address()});
        waitForTitles({u"Sleeper"_s});
        waitForCall(u"GetLayout 0"_s);
        call(u"Sync"_s);
        m_dispatch.runDue(); // its menu, read in advance, is parsed on another thread
    }
    ~StoppedProgramTest() override
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    // Returns once it has received everything that was sent to it before and its answers have come.
    void call(const QString &method)
    {
        bool isAnswered = false;
        QObject context;
        callAsync(m_bus.connection(u"own"_s), {u"test.Sleeper"_s, u"/StatusNotifierItem"_s, u"test.Sleeper"_s}, method,
                  {}, &context, [&](const BusReply &reply) { isAnswered = reply.has_value(); });
        waitUntil([&] { return isAnswered; });
        waitForCall(method);
    }
    void waitForCall(const QString &what)
    {
        waitUntil([&] {
            m_log += QString::fromUtf8(m_process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
            return m_log.contains(what);
        });
    }
    void stop()
    {
        ::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP);
        siginfo_t info;
        ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(m_process.processId()), &info, WSTOPPED), 0);
    }
    QStringList callsWhenItWakes()
    {
        m_log.clear();
        ::kill(static_cast<pid_t>(m_process.processId()), SIGCONT);
        call(u"Sync"_s);
        return m_log;
    }

    QProcess m_process;
    QStringList m_log;
    const QStringList m_told{u"Sleeper: The program does not answer."_s};
};

TEST_F(StoppedProgramTest, APressWithoutAnAnswerIsToldAndForgotten)
{
    call(u"Change"_s); // what was read of its menu is no longer valid
    stop();
    press(0);
    m_dispatch.advance(1.99);
    EXPECT_EQ(messages(), QStringList());
    m_dispatch.advance(0.01);
    EXPECT_EQ(messages(), m_told);
    m_dispatch.advance(60);
    EXPECT_EQ(messages(), QStringList());
    EXPECT_EQ(callsWhenItWakes().filter(kEffects), QStringList());
    EXPECT_FALSE(isMenuOpen());

    press(0);
    waitUntil([&] { return isMenuOpen(); });
}

TEST_F(StoppedProgramTest, AChoiceInAMenuThatItNeverHeardOfIsForgotten)
{
    stop();
    press(0);
    ASSERT_TRUE(isMenuOpen()); // it was read in advance
    m_dispatch.advance(1);
    ASSERT_TRUE(m_desktop.menus().choose(u"Quit"_s));
    m_dispatch.advance(1);
    EXPECT_EQ(messages(), m_told);
    const auto calls = callsWhenItWakes();
    EXPECT_EQ(calls.filter(kEffects), QStringList());
    EXPECT_TRUE(calls.contains(u"Event 0 closed"_s));
}

TEST_F(StoppedProgramTest, IsNotActivatedWhenItWakes)
{
    stop();
    click(u"Sleeper"_s);
    m_dispatch.advance(2);
    EXPECT_EQ(messages(), m_told);
    EXPECT_EQ(callsWhenItWakes().filter(kEffects), QStringList());
}

} // namespace brimshade::desktop::tray
