#pragma once
#include "Arguments.h"
#include "ScriptClock.h"

#include <QHash>
#include <QJsonObject>
#include <expected>
#include <functional>

namespace brimshade::desktop {

class Desktop;
class ScriptHost;
enum class MouseButton;

// Carries out script commands, one JSON object at a time. docs/DESKTOP.md is the reference. Main thread.
class ScriptRunner {
public:
    // The parts of the state answer that only the program itself knows: "model", "shown" and "divider".
    using ProgramState = std::function<QJsonObject()>;

    using Result = std::expected<QJsonObject, QString>;
    using Command = std::function<Result(Arguments &)>;

    // All outlive the runner.
    ScriptRunner(Desktop &desktop, ScriptHost &host, ScriptClock &clock, ProgramState programState);

    // Adds a command of the particular desktop that is driven; each name only once.
    void add(const QString &name, const Command &command);

    // The answer, "ok" included. Never throws, never ends the program.
    QJsonObject run(const QJsonObject &command);

private:
    void addOwnCommands();

    Result advance(Arguments &arguments);
    Result state(Arguments &arguments);
    Result picture(Arguments &arguments);

    Result move(Arguments &arguments);
    Result click(Arguments &arguments);
    Result press(Arguments &arguments);
    Result release(Arguments &arguments);
    Result drag(Arguments &arguments);
    Result scroll(Arguments &arguments);
    Result key(Arguments &arguments);
    Result type(Arguments &arguments);

    Result find(Arguments &arguments);
    Result pressElement(Arguments &arguments);
    Result menu(Arguments &arguments);
    Result choose(Arguments &arguments);

    void clickAt(QPointF at, MouseButton button, std::uint64_t modifiers);

    Desktop &m_desktop;
    ScriptHost &m_host;
    ScriptClock &m_clock;
    ProgramState m_programState;
    QHash<QString, Command> m_commands;
};

} // namespace brimshade::desktop
