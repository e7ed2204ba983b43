#include "app/AppDelegate.h"
#include "composition/CommandLine.h"
#include "composition/LiveSession.h"
#include "composition/ScriptLoop.h"
#include "composition/Session.h"
#include "composition/WhatRuns.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/KeptOrderFile.h"
#include "desktop/services/FileDefaults.h"
#include "desktop/session/instance/Instance.h"
#include "desktop/session/remote/Remote.h"
#include "desktop/session/surface/ShellBackend.h"
#include "desktop/stage/builtin/BuiltInDesktop.h"
#include "desktop/stage/file/DesktopFile.h"
#include "desktop/stage/scene/SceneHost.h"
#include "desktop/views/Rendering.h"
#include "i18n/Translation.h"
#include "menubar/MenuExtra.h"
#include "platform/Application.h"
#include "platform/Platform.h"

#include <QFile>
#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr int kFailed = 1;
constexpr int kBadUse = 2;

int complain(const QString &message)
{
    std::fprintf(stderr, "brimshade: %s\n", qUtf8Printable(message));
    return kBadUse;
}

// Before the application object. The error is for standard error.
std::expected<void, QString> prepareEnvironment(const composition::CommandLine &line)
{
    if (line.isSession)
        return desktop::session::ShellBackend::prepareEnvironment();
    if (!line.hasWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return {};
}

// Even when it only draws off screen, the application object looks for display servers and warns if the runtime folder
// is missing, which a machine without a display need not have.
std::unique_ptr<QGuiApplication> makeOffscreenApplication(int &argc, char **argv)
{
    const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
            if (type == QtFatalMsg)
                complain(message);
        });
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(usual);
    return application;
}

void prepareRendering(bool hasWindow)
{
    if (hasWindow)
        desktop::preferSoftwareRenderer();
    else
        desktop::useSoftwareRenderer();
    desktop::disableStemDarkening();
}

std::unique_ptr<desktop::FileDefaults> openDefaults(const composition::CommandLine &line)
{
    if (line.script && !line.defaultsFile)
        return nullptr;
    const QString path = line.defaultsFile.value_or(desktop::FileDefaults::defaultPath());
    return std::make_unique<desktop::FileDefaults>(path, [](const QString &message) { complain(message); });
}

std::optional<QString> stateFile(const composition::CommandLine &line)
{
    if (line.script || line.stateFile)
        return line.stateFile;
    return desktop::KeptOrderFile::defaultPath();
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
                                       .stateFile = stateFile(line),
                                       .scale = line.scale,
                                       .printsLog = line.printsLog};
}

template <typename AnySession> int runWindow(AnySession &session)
{
    QObject::connect(&session.desktop(), &desktop::Desktop::terminated, qApp, &QGuiApplication::quit);
    return QGuiApplication::exec();
}

template <typename AnySession>
int runScript(AnySession &session, const composition::CommandLine &line, int fileDescriptor)
{
    const QString name = *line.script == "-"_L1 ? u"standard input"_s : *line.script;
    composition::ScriptLoop loop(fileDescriptor, name,
                                 [&](const QJsonObject &command) { return session.run(command); });
    QObject::connect(&session.desktop(), &desktop::Desktop::terminated, qApp, [&] { loop.stop(); });
    return line.isRealTime ? loop.runInEventLoop() : loop.runBlocking();
}

int runStage(const composition::CommandLine &line, int scriptDescriptor)
{
    auto options = sessionOptions(line);
    if (!options)
        return complain(options.error());
    composition::Session session(std::move(*options));
    if (line.hasWindow)
        session.scene().quickWindow()->show();
    return line.script ? runScript(session, line, scriptDescriptor) : runWindow(session);
}

// For when this session already has a Brimshade.
int openAnothersPanel()
{
    const auto answer = desktop::session::remote::activate();
    if (answer)
        return 0;
    complain(QString::fromStdString(answer.error()));
    return kFailed;
}

QList<desktop::session::ListedItem> listed(const menubar::ExtraList &extras)
{
    QList<desktop::session::ListedItem> items;
    for (const menubar::MenuExtra &extra : extras)
        items.append({extra.detail, extra.name, extra.isHidden});
    return items;
}

int runSession(const composition::CommandLine &line, int scriptDescriptor)
{
    using desktop::session::Instance;
    Instance instance(QDBusConnection::sessionBus());
    const Instance::Claim claim = instance.claim();
    if (claim == Instance::Claim::anothers)
        return openAnothersPanel();
    if (claim == Instance::Claim::noBus)
        complain(u"there is no message bus: no tray items, and nothing can open the panel but the bar"_s);
    composition::LiveSessionOptions options;
    options.defaults = openDefaults(line);
    options.screen.name = line.screen.value_or(QString());
    options.hostsTray = line.hostsTray;
    options.stateFile = stateFile(line);
    options.printsLog = line.printsLog;
    options.isNotchSaid = line.notch.has_value();
    options.screen.notch = line.notch.value_or(desktop::session::NotchChoice());
    auto session = composition::LiveSession::create(std::move(options));
    if (!session)
        return complain(session.error());
    app::AppDelegate &delegate = (*session)->delegate();
    instance.serve(
        {.openPanel = [&delegate] { delegate.openPanel(); },
         .togglePanel = [&delegate] { delegate.togglePanel(); },
         .openSettings = [&delegate] { delegate.openSettings(); },
         .quit = [&session] { (*session)->desktop().platform().application.terminate(); }},
        {.list =
             [&delegate](const auto &give) { delegate.listItems([give](const auto &items) { give(listed(items)); }); },
         .open = [&delegate](const QString &name, const auto &then) { delegate.openItem(name, then); }});
    return line.script ? runScript(**session, line, scriptDescriptor) : runWindow(**session);
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

    QFile script;
    if (line->script) {
        script.setFileName(*line->script);
        const bool opened =
            *line->script == "-"_L1 ? script.open(stdin, QIODevice::ReadOnly) : script.open(QIODevice::ReadOnly);
        if (!opened)
            return complain(u"%1: %2"_s.arg(*line->script, script.errorString()));
    }

    if (const auto prepared = prepareEnvironment(*line); !prepared)
        return complain(prepared.error());
    const auto application =
        line->hasWindow ? std::make_unique<QGuiApplication>(argc, argv) : makeOffscreenApplication(argc, argv);
    application->setApplicationName(u"brimshade"_s);
    if (!line->isSession) // in a session every window's title would repeat it
        application->setApplicationDisplayName(u"Brimshade"_s);
    application->setDesktopFileName(u"org.brimshade.Brimshade"_s);
    prepareRendering(line->hasWindow);
    i18n::installTranslation(*application, QLocale());
    if (line->isSession)
        i18n::installSessionTexts(*application, QLocale());

    if (line->printsLog)
        std::fprintf(stderr, "brimshade: %s\n", qUtf8Printable(composition::whatRuns()));
    if (line->isSession)
        desktop::session::ShellBackend::end(runSession(*line, script.handle()));
    return runStage(*line, script.handle());
}
