#pragma once
#include <QByteArray>
#include <QString>
#include <deque>
#include <functional>
#include <optional>

class QJsonObject;

namespace brimshade::composition {

// Feeds a script, one JSON object per line, to a runner and prints one JSON answer per line. Main thread.
class ScriptLoop {
public:
    using Run = std::function<QJsonObject(const QJsonObject &)>;

    // name: of the file, for messages.
    ScriptLoop(int fileDescriptor, const QString &name, Run run);

    // Reads and runs to the end of the file, and returns the exit status: 0, or 2 for a line that is not a JSON object.
    int runBlocking();
    // The same while the event loop of the application keeps running between the lines.
    int runInEventLoop();
    void stop(); // runs no further line; when none is running, the event loop ends at once

private:
    bool readMore(); // false at the end of the file
    std::optional<QByteArray> nextLine();
    std::optional<int> refuseLongLine() const; // call once the complete lines have been taken
    std::optional<int> runLine(const QByteArray &line); // the exit status, when the script ends here

    int m_fileDescriptor;
    QString m_name;
    Run m_run;
    QByteArray m_unread;
    int m_lineNumber = 0;
    bool m_atEnd = false;
    bool m_stopped = false;
    bool m_isRunning = false;
};

} // namespace brimshade::composition
