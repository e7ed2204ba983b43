#pragma once
#include <QByteArray>
#include <QString>
#include <deque>
#include <functional>
#include <optional>

class QJsonObject;

namespace brimshade::composition {

// Feeds a script, one JSON object a line, to a runner and prints one JSON answer a line. Main thread.
class ScriptLoop {
public:
    using Run = std::function<QJsonObject(const QJsonObject &)>;

    // name: of the file, for messages.
    ScriptLoop(int fileDescriptor, const QString &name, Run run);

    // Reads and runs to the end of the file, and returns the exit status: 0, or 2 for a line that is not a JSON object.
    int runBlocking();
    // The same while the event loop of the application keeps running between the lines.
    int runInEventLoop();
    void stop(); // runs no line after the present one; where none is running, the event loop ends now

private:
    bool readMore(); // false at the end of the file
    std::optional<QByteArray> nextLine();
    std::optional<int> refuseLongLine() const; // after the whole lines that were read
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
