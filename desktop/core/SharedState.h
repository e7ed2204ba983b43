#pragma once
#include "Inspection.h"
#include "platform/Screens.h"
#include "platform/Workspace.h"

#include <deque>
#include <map>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace brimshade::desktop {

// What decides how fast an application answers, shared by all its elements.
struct Responsiveness {
    bool isRunning = true;
    bool hangs = false;
    double latency = 0; // seconds that each request takes
};

// An Accessibility element. Everything but kind and pid is guarded by the SharedState.
struct Element final : platform::AXUIElementObject {
    enum class Kind { application, extrasMenuBar, item };

    Element(Kind elementKind, int processIdentifier) : kind(elementKind), pid(processIdentifier) { }

    const Kind kind;
    const int pid;
    double messagingTimeout = 0; // seconds; 0: the system's own
    bool isAlive = true;
    std::shared_ptr<Responsiveness> process; // null in application elements: those ask for the pid each time
    QString role;
    std::optional<QString> title, description, identifier;
    std::optional<QRectF> frame; // display space; absent: unreadable, or not laid out yet
    QStringList actions;
    std::optional<platform::AXError> pressError;
    QString owner; // the application's name, to tell a person that the element is gone; empty: nobody is told
    std::vector<platform::AXUIElement> children;
};
using ElementPointer = std::shared_ptr<Element>;

// A running application as Accessibility knows it.
struct AccessibleProcess {
    std::shared_ptr<Responsiveness> responsiveness;
    ElementPointer extrasMenuBar; // null: it has none
};

// What may be read on any thread.
struct DisplayState {
    std::vector<platform::Screen> screens;
    std::optional<platform::Screen> keyScreen; // of the key window
    std::vector<platform::RunningApplication> applications;
    std::unordered_map<int, AccessibleProcess> processes;
    std::map<QString, QString> displayNames;
    std::map<QString, platform::Image> bundleIcons; // by bundle path; kept when the application quits
    std::vector<QVariantMap> windowInfo; // the program's windows, front to back
    std::vector<QVariantMap> menuBarInfo; // one for each bar that shows
    QPointF pointer;
    bool isTrusted = true;

    std::deque<SyntheticEvent> events;
    std::deque<PerformedAction> actions;
    std::deque<QString> openedURLs;
    std::deque<QString> messages;
    int promptCount = 0;
    std::uint64_t attributeReads = 0;
};

// The one lock over everything that threads share. Only the main thread writes what the display shows; any thread reads
// it, posts events and asks Accessibility. None of the program's code is called while the lock is held.
class SharedState {
public:
    template <typename Use> auto read(Use use) const
    {
        const std::lock_guard lock(m_mutex);
        return use(std::as_const(m_state));
    }
    template <typename Use> auto write(Use use)
    {
        const std::lock_guard lock(m_mutex);
        return use(m_state);
    }

    QPointF pointer() const
    {
        return read([](const DisplayState &state) { return state.pointer; });
    }
    // The primary screen's height, 0 without one. It converts between screen space and display space.
    double primaryHeight() const
    {
        return read([](const DisplayState &s) { return s.screens.empty() ? 0. : s.screens.front().frame.height(); });
    }

private:
    mutable std::mutex m_mutex;
    DisplayState m_state;
};

// Records may never be taken, so the oldest is dropped.
template <typename Entry> void record(std::deque<Entry> &entries, Entry entry)
{
    constexpr std::size_t kMost = 10'000;
    if (entries.size() == kMost)
        entries.pop_front();
    entries.push_back(std::move(entry));
}

} // namespace brimshade::desktop
