#include "MenuLayout.h"

#include "IconFinder.h"
#include "Pixmap.h"
#include "ShortcutText.h"
#include "WireValue.h"
#include "desktop/core/PixelImage.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr int kMostPictures = 200; // in one menu; the entries after that have none
constexpr QSizeF kPictureSize{16, 16};

class Parser {
public:
    Parser(const PictureByName &picture, const MenuLimits &limits)
        : m_picture(picture), m_limits(limits), m_seen(limits.taken)
    {
    }

    std::vector<MenuEntry> children(const QVariant &node, int depth)
    {
        const auto fields = listOf(node);
        const auto nodes = fields.size() == 3 ? listOf(fields[2]) : QVariantList();
        std::vector<MenuEntry> result;
        for (const auto &child : nodes) {
            if (m_seen.size() >= m_limits.entries || depth > m_limits.depth) {
                m_isCut = true;
                break;
            }
            add(child, depth, result);
        }
        while (!result.empty() && result.back().isSeparator)
            result.pop_back();
        return result;
    }

    bool isCut() const { return m_isCut; }

private:
    void add(const QVariant &node, int depth, std::vector<MenuEntry> &result)
    {
        const auto fields = listOf(node);
        if (fields.size() != 3 || fields[0].typeId() != QMetaType::Int || m_seen.contains(fields[0].toInt()))
            return;
        const int id = fields[0].toInt();
        m_seen.insert(id);
        const auto properties = fields[1].toMap();
        if (!boolOf(properties.value(u"visible"_s)).value_or(true))
            return;
        auto entry = read(id, properties);
        const bool separatesNothing = entry.isSeparator && (result.empty() || result.back().isSeparator);
        if (separatesNothing || (!entry.isSeparator && entry.title.isEmpty() && entry.icon.isNull()))
            return;
        entry.submenu = children(node, depth + 1);
        entry.hasSubmenu = entry.hasSubmenu || !entry.submenu.empty();
        result.push_back(std::move(entry));
    }

    MenuEntry read(int id, const QVariantMap &properties)
    {
        const auto line = [&](const char *name) { return lineOf(properties.value(QString::fromLatin1(name))); };
        MenuEntry entry;
        entry.id = id;
        entry.isSeparator = line("type") == u"separator";
        entry.title = withoutMnemonic(line("label"));
        entry.isEnabled = boolOf(properties.value(u"enabled"_s)).value_or(true);
        entry.hasSubmenu = line("children-display") == u"submenu";
        readToggle(line("toggle-type"), properties.value(u"toggle-state"_s), entry);
        entry.shortcut = shortcutText(properties.value(u"shortcut"_s));
        entry.icon = iconOf(line("icon-name"), properties.value(u"icon-data"_s));
        return entry;
    }

    static void readToggle(const QString &type, const QVariant &state, MenuEntry &entry)
    {
        using Toggle = MenuEntry::Toggle;
        entry.toggle = type == u"checkmark" ? Toggle::checkmark : type == u"radio" ? Toggle::radio : Toggle::none;
        entry.isOn = entry.toggle != Toggle::none && integerOf(state).value_or(-1) == 1;
    }

    platform::Image iconOf(const QString &name, const QVariant &data)
    {
        if ((name.isEmpty() && data.isNull()) || m_pictures >= kMostPictures)
            return {};
        ++m_pictures;
        auto image = name.isEmpty() || !m_picture ? platform::Image() : m_picture(name);
        if (image.isNull())
            image = imageOf(decodePng(data.toByteArray()), kPictureSize);
        return image.resized(kPictureSize);
    }

    const PictureByName &m_picture;
    const MenuLimits &m_limits;
    QSet<int> m_seen;
    int m_pictures = 0;
    bool m_isCut = false;
};

bool isSameEntry(const MenuEntry &a, const MenuEntry &b)
{
    return a.id == b.id && a.title == b.title && a.isSeparator == b.isSeparator && a.isEnabled == b.isEnabled
        && a.toggle == b.toggle && a.isOn == b.isOn && a.shortcut == b.shortcut && a.hasSubmenu == b.hasSubmenu
        && a.icon.bitmap() == b.icon.bitmap() && looksTheSame(a.submenu, b.submenu);
}

} // namespace

MenuLayout parseLayout(const QVariant &node, const PictureByName &picture, const MenuLimits &limits)
{
    Parser parser(picture, limits);
    MenuLayout layout;
    layout.entries = parser.children(node, 1);
    layout.isCut = parser.isCut();
    return layout;
}

QString withoutMnemonic(const QString &label)
{
    QString text;
    for (qsizetype i = 0; i < label.size(); ++i) {
        if (label[i] == u'_' && ++i == label.size())
            break;
        text += label[i];
    }
    return text;
}

const MenuEntry *findMenuEntry(const std::vector<MenuEntry> &entries, int id)
{
    for (const auto &entry : entries) {
        if (entry.id == id)
            return &entry;
        if (const auto *inside = findMenuEntry(entry.submenu, id))
            return inside;
    }
    return nullptr;
}

MenuEntry *findMenuEntry(std::vector<MenuEntry> &entries, int id)
{
    return const_cast<MenuEntry *>(findMenuEntry(std::as_const(entries), id));
}

QSet<int> idsOf(const std::vector<MenuEntry> &entries)
{
    QSet<int> ids;
    for (const auto &entry : entries) {
        ids.insert(entry.id);
        ids.unite(idsOf(entry.submenu));
    }
    return ids;
}

int depthOf(const std::vector<MenuEntry> &entries, int id)
{
    for (const auto &entry : entries) {
        if (entry.id == id)
            return 1;
        if (const int inside = depthOf(entry.submenu, id))
            return inside + 1;
    }
    return 0;
}

bool looksTheSame(const std::vector<MenuEntry> &a, const std::vector<MenuEntry> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSameEntry);
}

} // namespace brimshade::desktop::tray
