#pragma once

namespace brimshade::platform {

enum class SymbolWeight { regular, medium, semibold, bold };

struct SymbolConfiguration {
    double pointSize = 13;
    SymbolWeight weight = SymbolWeight::regular;
};

} // namespace brimshade::platform
