#pragma once
#include "Image.h"
#include "SymbolConfiguration.h"

#include <QString>

namespace brimshade::platform {

// The system's symbols, by name. A name the system lacks gives a null image.
class Symbols {
public:
    virtual ~Symbols() = default;
    // A template image as large as the symbol at that configuration. Main thread.
    virtual Image symbolImage(const QString &name, const QString &accessibilityDescription,
                              const SymbolConfiguration &configuration) = 0;
};

} // namespace brimshade::platform
