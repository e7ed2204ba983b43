#pragma once

namespace brimshade::platform {

class Accessibility;
class Application;
class Dispatch;
class EventServices;
class HotkeyCenter;
class ItemServices;
class Log;
class LoginItems;
class MenuBarPreferences;
class Menus;
class NotificationCenter;
class Screens;
class StatusBar;
class Symbols;
class UserDefaults;
class UserNotifications;
class Windows;
class WindowServer;
class Workspace;

// Everything the system may ask of its operating system. The services outlive whoever holds this.
struct Platform {
    Accessibility &accessibility;
    Application &application;
    Dispatch &dispatch;
    EventServices &eventServices;
    HotkeyCenter &hotkeyCenter;
    Log &log;
    LoginItems &loginItems;
    Menus &menus;
    NotificationCenter &notificationCenter; // the default one
    Screens &screens;
    StatusBar &statusBar;
    Symbols &symbols;
    UserDefaults &userDefaults;
    UserNotifications &userNotifications;
    Windows &windows;
    WindowServer &windowServer;
    Workspace &workspace;
    ItemServices *itemServices; // null where items of the bar offer nothing beyond Accessibility
    MenuBarPreferences *menuBarPreferences; // null where the menu bar is the system's own affair
};

} // namespace brimshade::platform
