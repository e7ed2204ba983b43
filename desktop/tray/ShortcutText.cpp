#include "ShortcutText.h"

#include "WireValue.h"

#include <array>
#include <utility>

namespace brimshade::desktop::tray {

namespace {

using Pair = std::pair<const char16_t *, const char16_t *>;

// In the order in which a menu shows them.
constexpr std::array<Pair, 4> kModifiers{{{u"Control", u"⌃"}, {u"Alt", u"⌥"}, {u"Shift", u"⇧"}, {u"Super", u"⌘"}}};

constexpr std::array<Pair, 17> kKeys{{
    {u"Return", u"↩"},
    {u"KP_Enter", u"⌅"},
    {u"Escape", u"⎋"},
    {u"BackSpace", u"⌫"},
    {u"Delete", u"⌦"},
    {u"Tab", u"⇥"},
    {u"Up", u"↑"},
    {u"Down", u"↓"},
    {u"Left", u"←"},
    {u"Right", u"→"},
    {u"Page_Up", u"⇞"},
    {u"Page_Down", u"⇟"},
    {u"Home", u"↖"},
    {u"End", u"↘"},
    {u"space", u"Space"},
    {u"plus", u"+"},
    {u"minus", u"-"},
}};

QString keyText(const QString &name)
{
    for (const auto &[key, text] : kKeys) {
        if (name == QStringView(key))
            return QString::fromUtf16(text);
    }
    return name.size() == 1 ? name.toUpper() : name;
}

} // namespace

QString shortcutText(const QVariant &shortcuts)
{
    const auto all = listOf(shortcuts);
    const auto keys = all.isEmpty() ? QVariantList() : listOf(all.first());
    if (keys.isEmpty())
        return {};
    QStringList names;
    for (const auto &key : keys.mid(0, 8))
        names.append(lineOf(key, 32));
    const auto last = names.takeLast();
    QString text;
    for (const auto &[modifier, symbol] : kModifiers) {
        if (names.contains(QStringView(modifier)))
            text += QStringView(symbol);
    }
    return text + keyText(last);
}

} // namespace brimshade::desktop::tray
