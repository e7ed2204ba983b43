#include "DesktopDriver.h"

namespace brimshade::contract {

std::unique_ptr<Driver> makeDriver()
{
    return std::make_unique<DesktopDriver>(notchedDesktop({}));
}

} // namespace brimshade::contract
