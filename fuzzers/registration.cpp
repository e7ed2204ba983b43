#include "Expect.h"
#include "desktop/tray/BusName.h"

using namespace Qt::StringLiterals;
using namespace brimshade;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto found = desktop::tray::parseRegistration(text, u":1.7"_s);
    fuzz::expect(!found || desktop::tray::isBusName(found->service), "a name that the bus takes");
    fuzz::expect(!found || desktop::tray::isObjectPath(found->path), "a path that the bus takes");
    return 0;
}
