#pragma once
#include "Driver.h"

namespace brimshade::contract {

std::unique_ptr<Driver> makeDesktopDriver(); // the virtual desktop, in virtual time

} // namespace brimshade::contract
