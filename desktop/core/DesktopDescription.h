#pragma once
#include "platform/Geometry.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

// What a desktop file says, as types. docs/DESKTOP.md is the reference of the format.
namespace brimshade::desktop {

struct ScreenDescription {
    QString name;
    QRectF frame; // screen space
    double menuBarHeight = 24;
    double safeAreaTop = 0;
    std::optional<std::pair<double, double>> notch; // lower, upper: offsets from the screen's left edge
};

struct ExtraDescription {
    enum class Frame { laidOut, fixed, unreadable };

    QString role; // "AXMenuBarItem" unless the file says otherwise
    std::optional<QString> title, description, identifier;
    double width = 30;
    Frame frameKind = Frame::laidOut;
    QRectF frame; // display space; only with Frame::fixed
    QStringList actions;
    std::optional<int> pressError; // every action answers this code
    QStringList menu; // "-" is a separator
    QString symbol; // what the bar draws; the application's icon when empty
    std::vector<ExtraDescription> children;
};

struct ApplicationDescription {
    int pid = 0;
    std::optional<QString> name, bundleIdentifier, bundlePath;
    std::optional<QString> icon; // "#rrggbb", the path of a picture, or an icon theme name
    bool hangs = false;
    double latency = 0; // seconds that each request takes
    std::optional<std::vector<ExtraDescription>> extras; // absent: it has no extras menu bar at all
};

struct LoginItemDescription {
    int status = 0;
    std::optional<QString> failure;
};

struct DesktopDescription {
    std::vector<ScreenDescription> screens;
    std::vector<ApplicationDescription> applications;
    std::map<QString, QString> displayNames; // path → display name
    bool trusted = true;
    bool menuBarShowing = true;
    bool movesAccepted = true;
    std::optional<QPointF> pointer; // display space
    std::optional<LoginItemDescription> loginItem;
    QVariantMap defaults;
};

} // namespace brimshade::desktop
