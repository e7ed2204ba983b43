#pragma once
#include <QPoint>
#include <QPointF>
#include <QString>
#include <functional>

namespace brimshade::desktop::tray {

// What tray items need of the session that they are shown in. Main thread.
struct Surroundings {
    // A point of the display in the coordinates that other programs use; null: the same ones.
    std::function<QPoint(QPointF display)> toScreen = {};
    // Hands over, now or later, a token with which another program may bring its windows to the front, or an empty text
    // if there is none; null: there are never any tokens.
    std::function<void(std::function<void(const QString &token)>)> requestToken = {};
};

} // namespace brimshade::desktop::tray
