#include "Expect.h"
#include "desktop/stage/file/DesktopFile.h"

using namespace brimshade;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto desktop = desktop::parseDesktop({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
    fuzz::expect(desktop || !desktop.error().isEmpty(), "a message");
    fuzz::expect(!desktop || !desktop->screens.empty(), "a screen");
    return 0;
}
