#pragma once
#include "ItemShortcuts.h"

#include <QObject>
#include <expected>
#include <functional>

namespace brimshade::platform {
class Dispatch;
class HotkeyCenter;
} // namespace brimshade::platform

namespace brimshade::model {

class NotchModel;

// Records the shortcut of one item, in the panel. Hotkeys are off while it does, so that every combination can be
// tried. Main thread.
class ShortcutRecorder : public QObject {
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed) // the item's
    Q_PROPERTY(QString keys READ keys NOTIFY changed) // those it has or has just been given; empty for none
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed) // what to do, or what was wrong

public:
    enum State {
        Off,
        Listening,
        Refused, // the keys pressed; it still listens
        Recorded, // for a moment, before it turns off
        Impossible, // the sentence says what to do instead
    };
    Q_ENUM(State)

    // All outlive it.
    ShortcutRecorder(NotchModel &model, platform::HotkeyCenter &hotkeys, platform::Dispatch &dispatch);
    ~ShortcutRecorder() override;

    // advice: what to do where no shortcut can be recorded, else empty.
    void begin(const QString &item, const QString &name, const QString &advice);
    Q_INVOKABLE void end(); // nothing changes
    Q_INVOKABLE void remove(); // the item loses its shortcut; ends
    void handle(const platform::Event &event); // a key down

    State state() const { return m_state; }
    QString name() const { return m_name; }
    QString keys() const;
    QString sentence() const { return m_sentence; }

    // Installed once by the coordinator; they do nothing until then. The error is for the person.
    using Assigned = std::expected<void, QString>;
    std::function<Assigned(const ItemShortcut &)> onAssign = [](const ItemShortcut &) { return Assigned(); };
    std::function<void(const QString &item)> onRemove = [](const QString &) {};

Q_SIGNALS:
    void changed();

private:
    void enter(State state, const QString &sentence);
    void record(const KeyCombination &keys);
    void endSoon();

    NotchModel &m_model;
    platform::HotkeyCenter &m_hotkeys;
    platform::Dispatch &m_dispatch;
    State m_state = Off;
    QString m_item, m_name, m_sentence;
    int m_timesRecorded = 0; // including each repeat of keys still held down
};

} // namespace brimshade::model
