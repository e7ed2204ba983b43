#pragma once
#include <QImage>
#include <QPoint>
#include <QString>
#include <cstdint>
#include <optional>

namespace brimshade::desktop::session {

// A window that a program has docked, as its item shows it. Texts are one line, plain, bounded, and may be empty.
struct DockedItem {
    std::uint32_t window = 0;
    int pid = 0; // of its program; 0 where the server does not know it
    QString id; // what the window calls its kind: WM_CLASS's instance
    QString title; // its name, else its class
    QImage picture; // null while it has drawn nothing

    bool operator==(const DockedItem &) const = default;
};

// Presses and releases of a button over a docked window.
struct DockedClick {
    std::uint32_t window = 0;
    std::uint8_t button = 1; // as X counts them: 4 to 7 are the wheel, up, down, left and right
    int count = 1;
    std::optional<QPoint> below; // the middle of the item's lower edge, pixels of the root window; absent: as before
};

} // namespace brimshade::desktop::session
