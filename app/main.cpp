#include "composition/CommandLine.h"
#include "composition/ScriptLoop.h"
#include "composition/Session.h"
#include "desktop/core/Desktop.h"
#include "desktop/services/FileDefaults.h"
#include "desktop/stage/builtin/BuiltInDesktop.h"
#include "desktop/stage/file/DesktopFile.h"
#include "desktop/stage/scene/SceneHost.h"
#include "i18n/Translation.h"

#include <QFile>
#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr int kBadUse = 2;

int complain(const QString &message)
{
    std::fprintf(stderr, "brimshade: %s\n", qUtf8Printable(message));
    return kBadUse;
}

// Before the application object: they choose how Qt draws.
void prepareEnvironment(const composition::CommandLine &line)
{
    if (line.hasWindow)
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
}

std::unique_ptr<desktop::FileDefaults> openDefaults(const composition::CommandLine &line)
{
    if (line.script && !line.defaultsFile)
        return nullptr;
    const QString path = line.defaultsFile.value_or(desktop::FileDefaults::defaultPath());
    return std::make_unique<desktop::FileDefaults>(path, [](const QString &message) { complain(message); });
}

std::expected<composition::SessionOptions, QString> sessionOptions(const composition::CommandLine &line)
{
    const auto description = line.desktopFile
        ? desktop::readDesktopFile(*line.desktopFile)
        : std::expected<desktop::DesktopDescription, QString>(desktop::builtInDesktop());
    if (!description)
        return std::unexpected(description.error());
    return composition::SessionOptions{.description = *description,
                                       .defaults = openDefaults(line),
                                       .isScripted = line.script.has_value(),
                                       .hasWindow = line.hasWindow,
                                       .isRealTime = line.isRealTime,
                                       .hostsTray = line.hostsTray,
                                       .scale = line.scale};
}

int runWindow(composition::Session &session)
{
    QObject::connect(&session.desktop(), &desktop::Desktop::terminated, qApp, &QGuiApplication::quit);
    return QGuiApplication::exec();
}

int runScript(composition::Session &session, const composition::CommandLine &line, int fileDescriptor)
{
    const QString name = *line.script == "-"_L1 ? u"standard input"_s : *line.script;
    composition::ScriptLoop loop(fileDescriptor, name,
                                 [&](const QJsonObject &command) { return session.run(command); });
    QObject::connect(&session.desktop(), &desktop::Desktop::terminated, qApp, [&] { loop.stop(); });
    return line.isRealTime ? loop.runInEventLoop() : loop.runBlocking();
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const auto line = composition::parseCommandLine(arguments);
    if (!line)
        return complain(line.error());
    if (line->information) {
        std::fputs(qUtf8Printable(*line->information), stdout);
        return 0;
    }
    if (line->isSession)
        return complain(u"a session's menu bar: not yet"_s);

    QFile script;
    if (line->script) {
        script.setFileName(*line->script);
        const bool opened =
            *line->script == "-"_L1 ? script.open(stdin, QIODevice::ReadOnly) : script.open(QIODevice::ReadOnly);
        if (!opened)
            return complain(u"%1: %2"_s.arg(*line->script, script.errorString()));
    }

    prepareEnvironment(*line);
    QGuiApplication application(argc, argv);
    application.setApplicationName(u"brimshade"_s);
    application.setApplicationDisplayName(u"Brimshade"_s);
    application.setDesktopFileName(u"org.brimshade.Brimshade"_s);
    i18n::installTranslation(application, QLocale());

    auto options = sessionOptions(*line);
    if (!options)
        return complain(options.error());
    composition::Session session(std::move(*options));
    if (line->hasWindow)
        session.scene().quickWindow()->show();
    return line->script ? runScript(session, *line, script.handle()) : runWindow(session);
}
