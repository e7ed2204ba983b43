#include "ShortcutRecorder.h"
#include "NotchModel.h"
#include "platform/Dispatch.h"
#include "platform/HotkeyCenter.h"
#include "platform/KeyCodes.h"
#include "platform/Weakly.h"

#include <QPointer>

namespace brimshade::model {

namespace {

constexpr double kShown = 1; // seconds, of what was recorded

} // namespace

ShortcutRecorder::ShortcutRecorder(NotchModel &model, platform::HotkeyCenter &hotkeys, platform::Dispatch &dispatch)
    : m_model(model), m_hotkeys(hotkeys), m_dispatch(dispatch)
{
}

ShortcutRecorder::~ShortcutRecorder()
{
    if (m_state != Off)
        m_hotkeys.popSymbolicHotKeyMode();
}

void ShortcutRecorder::begin(const QString &item, const QString &name, const QString &advice)
{
    end();
    m_hotkeys.pushSymbolicHotKeyMode();
    m_item = item;
    m_name = name;
    if (advice.isEmpty())
        enter(Listening, tr("Hold ⌃, ⌥ or ⌘ and press a key."));
    else
        enter(Impossible, advice);
    m_model.setIsRecording(true);
}

void ShortcutRecorder::end()
{
    if (m_state == Off)
        return;
    m_hotkeys.popSymbolicHotKeyMode();
    enter(Off, {});
    m_model.setIsRecording(false);
}

void ShortcutRecorder::remove()
{
    onRemove(m_item);
    end();
}

QString ShortcutRecorder::keys() const
{
    const ItemShortcut *shortcut = m_model.itemShortcuts().of(m_item);
    return shortcut ? displayTitle(shortcut->keys) : QString();
}

void ShortcutRecorder::handle(const platform::Event &event)
{
    const KeyCombination keys = keyCombination(event);
    const bool isDelete = keys.keyCode == platform::kVK_Delete || keys.keyCode == platform::kVK_ForwardDelete;
    if (m_state == Recorded && event.isARepeat)
        endSoon();
    else if (event.isARepeat)
        return;
    else if (m_state == Recorded || keys.keyCode == platform::kVK_Escape)
        end();
    else if (isDelete && keys.modifiers == 0)
        remove();
    else if (m_state != Impossible)
        record(keys);
}

void ShortcutRecorder::record(const KeyCombination &keys)
{
    if (!canBeGlobal(keys)) {
        enter(Refused, tr("That can't be a shortcut. Hold ⌃, ⌥ or ⌘ and press a key."));
        return;
    }
    if (const auto assigned = onAssign({m_item, m_name, keys}); !assigned) {
        enter(Refused, assigned.error());
        return;
    }
    enter(Recorded, tr("Opens its menu from anywhere."));
    endSoon();
}

// Not at once: the repeats of keys still held down would trigger the shortcut just recorded.
void ShortcutRecorder::endSoon()
{
    const auto endUnlessRenewed = [](ShortcutRecorder &self, int time) {
        if (self.m_state == Recorded && self.m_timesRecorded == time)
            self.end();
    };
    m_dispatch.mainAfter(kShown, platform::weakly(QPointer(this), endUnlessRenewed, ++m_timesRecorded));
}

void ShortcutRecorder::enter(State state, const QString &sentence)
{
    m_state = state;
    m_sentence = sentence;
    Q_EMIT changed();
}

} // namespace brimshade::model
