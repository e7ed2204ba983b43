#pragma once
#include <QImage>
#include <QPoint>
#include <QString>
#include <cstdint>
#include <optional>

namespace brimshade::desktop::session {

// A window that a program has docked, as its item shows it. Texts are plain, bounded, single lines, and may be empty.
struct DockedItem {
    std::uint32_t window = 0;
    int pid = 0; // its program's; 0 if the server does not know it
    QString id; // the instance in its WM_CLASS
    QString title; // its name, else its class
    QImage picture; // null until it has drawn something

    bool operator==(const DockedItem &) const = default;
};

// Presses and releases of a button over a docked window.
struct DockedClick {
    std::uint32_t window = 0;
    std::uint8_t button = 1; // X's number: 4 to 7 are the wheel, up, down, left and right
    int count = 1;
    std::optional<QPoint> below; // the middle of the item's lower edge, in the root window; absent: unchanged
};

} // namespace brimshade::desktop::session
