#pragma once
#include "Arguments.h"
#include "ScriptClock.h"

#include <QJsonObject>
#include <expected>
#include <functional>

namespace brimshade::desktop {

class Desktop;
class SceneHost;

// Carries out script commands, one JSON object at a time. docs/DESKTOP.md is the reference. Main thread.
class ScriptRunner {
public:
    // What only the program itself can tell: "model", "shown" and "divider" of the state answer.
    using ProgramState = std::function<QJsonObject()>;

    // All outlive the runner.
    ScriptRunner(Desktop &desktop, SceneHost &scene, ScriptClock &clock, ProgramState programState);

    // The answer, "ok" included. Never throws, never ends the program.
    QJsonObject run(const QJsonObject &command);

private:
    using Result = std::expected<QJsonObject, QString>;
    using Handler = Result (ScriptRunner::*)(Arguments &);
    static Handler handlerFor(const QString &command);

    Result advance(Arguments &arguments);
    Result state(Arguments &arguments);
    Result picture(Arguments &arguments);

    Result move(Arguments &arguments);
    Result click(Arguments &arguments);
    Result press(Arguments &arguments);
    Result release(Arguments &arguments);
    Result drag(Arguments &arguments);
    Result key(Arguments &arguments);
    Result type(Arguments &arguments);

    Result find(Arguments &arguments);
    Result pressElement(Arguments &arguments);
    Result menu(Arguments &arguments);
    Result choose(Arguments &arguments);

    Result launch(Arguments &arguments);
    Result quit(Arguments &arguments);
    Result change(Arguments &arguments);
    Result screens(Arguments &arguments);
    Result trust(Arguments &arguments);
    Result menuBar(Arguments &arguments);
    Result moves(Arguments &arguments);
    Result loginItem(Arguments &arguments);

    void clickAt(QPointF at, bool right, std::uint64_t modifiers);

    Desktop &m_desktop;
    SceneHost &m_scene;
    ScriptClock &m_clock;
    ProgramState m_programState;
};

} // namespace brimshade::desktop
