// A list of layout nodes, as PlainValue.h writes them: the whole menu first, then new children of its entries.
#include "Expect.h"
#include "PlainValue.h"
#include "desktop/tray/MenuLayout.h"

using namespace brimshade::desktop::tray;
using brimshade::desktop::MenuEntry;
using brimshade::fuzz::expect;
using brimshade::fuzz::plainValue;

namespace {

qsizetype countOf(const std::vector<MenuEntry> &entries)
{
    qsizetype count = static_cast<qsizetype>(entries.size());
    for (const MenuEntry &entry : entries)
        count += countOf(entry.submenu);
    return count;
}

int heightOf(const std::vector<MenuEntry> &entries)
{
    int height = 0;
    for (const MenuEntry &entry : entries)
        height = std::max(height, heightOf(entry.submenu));
    return entries.empty() ? 0 : height + 1;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const MenuLimits most;
    const auto picture = [](const QString &) { return brimshade::platform::Image(); };
    for (const QVariant &node : plainValue(data, size).toList()) {
        const auto layout = parseLayout(node, picture);
        const auto ids = idsOf(layout.entries);
        expect(ids.size() <= most.entries && ids.size() == countOf(layout.entries), "each id once, and not too many");
        expect(heightOf(layout.entries) <= most.depth, "a menu that is not too deep");
        expect(looksTheSame(layout.entries, layout.entries), "a menu that is like itself");
        for (const int id : ids)
            expect(findMenuEntry(layout.entries, id)->id == id && depthOf(layout.entries, id) > 0, "every entry");
    }
    return 0;
}
