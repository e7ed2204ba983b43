#pragma once
#include <QObject>
#include <QPointer>

namespace brimshade::ui {

// For the setter of what an object follows: disconnects from what it followed until now. False when that is the same.
// The follower then connects to the new one, which may be null.
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
