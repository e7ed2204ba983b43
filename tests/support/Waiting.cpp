#include "Waiting.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <stdexcept>

namespace brimshade {

void waitFor(const QString &what, const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(kPatience);
    QTimer wakeUp; // for the deadline
    wakeUp.start(kPatience);
    while (!condition()) {
        if (deadline.hasExpired())
            throw std::runtime_error("never came: " + what.toStdString());
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
}

} // namespace brimshade
