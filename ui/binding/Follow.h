#pragma once
#include <QObject>
#include <QPointer>

namespace brimshade::ui {

// For a setter of the object that another one follows: disconnects the follower from the old object. False when the new
// one is the same; otherwise the follower goes on to connect to it, unless it is null.
template <class T> bool follow(QObject &follower, QPointer<T> &followed, T *next)
{
    if (followed == next)
        return false;
    if (followed)
        followed->disconnect(&follower);
    followed = next;
    return true;
}

} // namespace brimshade::ui
