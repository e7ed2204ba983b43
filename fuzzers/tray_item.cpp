// The properties of a tray item, as PlainValue.h writes them.
#include "Expect.h"
#include "PlainValue.h"
#include "desktop/tray/BusName.h"
#include "desktop/tray/TrayItem.h"

using namespace brimshade;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto item = desktop::tray::parseItem(fuzz::plainValue(data, size).toMap()).item;
    for (const auto &text : {item.id, item.title, item.label, item.toolTipTitle})
        fuzz::expect(text.size() <= 256 && !text.contains(u'\n'), "one short line");
    fuzz::expect(item.menuPath.isEmpty() || desktop::tray::isObjectPath(item.menuPath), "a path that the bus takes");
    for (const auto gesture : {desktop::ItemGesture::click, desktop::ItemGesture::menu})
        fuzz::expect(!pressOrder(item, gesture).empty(), "something to try");
    return 0;
}
