#include "ScriptRunner.h"
#include "ScriptHost.h"
#include "StateAnswer.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr double kLongestAdvance = 86400; // a day: a typing error should not hang a run

} // namespace

ScriptRunner::ScriptRunner(Desktop &desktop, ScriptHost &host, ScriptClock &clock, ProgramState programState)
    : m_desktop(desktop), m_host(host), m_clock(clock), m_programState(std::move(programState))
{
    addOwnCommands();
}

void ScriptRunner::add(const QString &name, const Command &command)
{
    m_commands.insert(name, command);
}

void ScriptRunner::addOwnCommands()
{
    using Handler = Result (ScriptRunner::*)(Arguments &);
    const std::pair<QString, Handler> handlers[] = {
        {u"advance"_s, &ScriptRunner::advance},
        {u"state"_s, &ScriptRunner::state},
        {u"picture"_s, &ScriptRunner::picture},
        {u"move"_s, &ScriptRunner::move},
        {u"click"_s, &ScriptRunner::click},
        {u"press"_s, &ScriptRunner::press},
        {u"release"_s, &ScriptRunner::release},
        {u"drag"_s, &ScriptRunner::drag},
        {u"scroll"_s, &ScriptRunner::scroll},
        {u"key"_s, &ScriptRunner::key},
        {u"type"_s, &ScriptRunner::type},
        {u"find"_s, &ScriptRunner::find},
        {u"press-element"_s, &ScriptRunner::pressElement},
        {u"menu"_s, &ScriptRunner::menu},
        {u"choose"_s, &ScriptRunner::choose},
    };
    for (const auto &[name, handler] : handlers)
        add(name, [this, handler](Arguments &arguments) { return (this->*handler)(arguments); });
}

QJsonObject ScriptRunner::run(const QJsonObject &command)
{
    const QString name = command.value(u"do"_s).toString();
    const auto handler = m_commands.constFind(name);
    Arguments arguments(command);
    Result result = handler != m_commands.cend()
        ? (*handler)(arguments)
        : Result(std::unexpected(name.isEmpty() ? u"do: expected the name of a command"_s
                                                : u"do: \"%1\" is no command"_s.arg(name)));
    m_clock.settle();
    if (!result)
        return {{u"ok"_s, false}, {u"error"_s, result.error()}};
    result->insert(u"ok"_s, true);
    return *result;
}

ScriptRunner::Result ScriptRunner::advance(Arguments &arguments)
{
    const double seconds = arguments.number(u"seconds"_s);
    if (seconds < 0 || seconds > kLongestAdvance)
        arguments.fail(u"seconds"_s, u"0 to %1"_s.arg(kLongestAdvance));
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_clock.advance(seconds);
    return {};
}

ScriptRunner::Result ScriptRunner::state(Arguments &arguments)
{
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    QJsonObject answer = stateAnswer(m_desktop);
    answer.insert(u"time"_s, m_clock.now());
    const QJsonObject program = m_programState();
    for (auto field = program.begin(); field != program.end(); ++field)
        answer.insert(field.key(), field.value());
    return answer;
}

ScriptRunner::Result ScriptRunner::picture(Arguments &arguments)
{
    const QString file = arguments.text(u"file"_s);
    const QString of = arguments.text(u"of"_s, u"desktop"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (file.contains(QChar::Null))
        return std::unexpected(u"file: expected a path"_s);

    m_host.settle();
    const std::optional<QImage> image = of == "desktop"_L1 ? m_host.picture() : m_host.picture(of);
    if (!image)
        return std::unexpected(u"of: no window \"%1\" is on screen"_s.arg(of));
    if (image->isNull())
        return std::unexpected(u"of: too large to draw"_s);
    if (!QDir().mkpath(QFileInfo(file).absolutePath()) || !image->save(file, "PNG"))
        return std::unexpected(u"file: \"%1\" cannot be written"_s.arg(file));
    return QJsonObject{{u"width"_s, image->width()}, {u"height"_s, image->height()}};
}

} // namespace brimshade::desktop
